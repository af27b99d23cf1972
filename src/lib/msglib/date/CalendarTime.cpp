#include "date/CalendarTime.h"

#include "base/Argument.h"

#include <type_traits>

namespace zem::msglib {

namespace {

struct ReadSeconds {
    using Seconds = std::optional<std::int64_t>;

    template <class Integer, class = std::enable_if_t<std::is_integral_v<Integer>>>
    Seconds operator()(Integer value) const {
        return static_cast<std::int64_t>(value);
    }
    Seconds operator()(float value) const { return operator()(static_cast<double>(value)); }
    Seconds operator()(double value) const {
        const bool fits = value >= -0x1p63 && value < 0x1p63;
        return fits ? Seconds(static_cast<std::int64_t>(value)) : std::nullopt;
    }
    Seconds operator()(const geom::Angle&) const { raise(Failure::InvalidDateArgument); }
    Seconds operator()(const std::string&) const { raise(Failure::InvalidDateArgument); }
    Seconds operator()(UnknownKind) const { raise(Failure::InvalidDateArgument); }
};

constexpr std::int64_t unitsPerSecond = 10'000'000;

constexpr platform::SYSTEMTIME epoch = {1970, 1, 0, 1, 0, 0, 0, 0};

} // namespace

std::optional<std::int64_t> readSeconds(const boost::any& argument) {
    return visitArgument(argument, ReadSeconds());
}

std::optional<platform::SYSTEMTIME> calendarTime(std::int64_t seconds) noexcept {
    platform::FILETIME count;
    if (!platform::SystemTimeToFileTime(&epoch, &count)) {
        return std::nullopt;
    }
    const std::int64_t epochUnits =
        static_cast<std::int64_t>(count.dwHighDateTime) << 32 | count.dwLowDateTime;
    const std::int64_t latest = (INT64_MAX - epochUnits) / unitsPerSecond;
    if (seconds < -epochUnits / unitsPerSecond || seconds > latest) {
        return std::nullopt;
    }
    const auto units = static_cast<std::uint64_t>(epochUnits + seconds * unitsPerSecond);
    count = {static_cast<std::uint32_t>(units), static_cast<std::uint32_t>(units >> 32)};
    platform::SYSTEMTIME time;
    if (!platform::FileTimeToSystemTime(&count, &time)) {
        return std::nullopt;
    }
    return time;
}

} // namespace zem::msglib
