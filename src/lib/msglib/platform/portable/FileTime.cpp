#include "platform/portable/Calendar.h"
#include "platform/portable/LastError.h"

namespace zem::msglib::platform {

namespace {

constexpr std::uint64_t unitsPerMillisecond = 10'000;
constexpr std::uint64_t millisecondsPerDay = 86'400'000;
constexpr std::uint64_t unitsPerDay = millisecondsPerDay * unitsPerMillisecond;
constexpr std::uint64_t countLimit = std::uint64_t{1} << 63;

std::uint64_t millisecondOfDay(const SYSTEMTIME& time) noexcept {
    const std::uint64_t minutes = std::uint64_t{time.wHour} * 60 + time.wMinute;
    return (minutes * 60 + time.wSecond) * 1000 + time.wMilliseconds;
}

SYSTEMTIME fieldsOf(std::uint32_t days, std::uint32_t milliseconds) noexcept {
    const CalendarDate date = dateOfDays(days);
    const auto field = [](std::uint32_t value) { return static_cast<std::uint16_t>(value); };
    return {field(date.year),
            field(date.month),
            field(weekDayOfDays(days)),
            field(date.day),
            field(milliseconds / 3'600'000),
            field(milliseconds / 60'000 % 60),
            field(milliseconds / 1000 % 60),
            field(milliseconds % 1000)};
}

bool invalidParameter() noexcept {
    setLastError(ERROR_INVALID_PARAMETER);
    return false;
}

} // namespace

bool SystemTimeToFileTime(const SYSTEMTIME* time, FILETIME* count) noexcept {
    if (time == nullptr || count == nullptr || !isCalendarDate(dateOf(*time)) ||
        !isTimeOfDay(*time)) {
        return invalidParameter();
    }
    const std::uint64_t days = daysOfDate(dateOf(*time));
    const std::uint64_t units =
        (days * millisecondsPerDay + millisecondOfDay(*time)) * unitsPerMillisecond;
    *count = {static_cast<std::uint32_t>(units), static_cast<std::uint32_t>(units >> 32)};
    return true;
}

bool FileTimeToSystemTime(const FILETIME* count, SYSTEMTIME* time) noexcept {
    if (count == nullptr || time == nullptr) {
        return invalidParameter();
    }
    const std::uint64_t units = std::uint64_t{count->dwHighDateTime} << 32 | count->dwLowDateTime;
    if (units >= countLimit) {
        return invalidParameter();
    }
    *time = fieldsOf(static_cast<std::uint32_t>(units / unitsPerDay),
                     static_cast<std::uint32_t>(units % unitsPerDay / unitsPerMillisecond));
    return true;
}

} // namespace zem::msglib::platform
