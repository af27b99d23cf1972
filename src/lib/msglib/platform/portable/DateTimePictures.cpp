#include "platform/portable/Calendar.h"
#include "platform/portable/Locales.h"
#include "platform/portable/TextBuffer.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace zem::msglib::platform {

namespace {

constexpr std::size_t abbreviationLength = 3;

constexpr std::string_view dayNames[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                         "Thursday", "Friday", "Saturday"};

constexpr std::string_view monthNames[] = {"January",   "February", "March",    "April",
                                           "May",       "June",     "July",     "August",
                                           "September", "October",  "November", "December"};

/// Appends a name or, for a run of three letters, its abbreviation.
void appendName(std::string_view name, std::size_t runLength, TextBuffer& out) noexcept {
    out.append(runLength == 3 ? name.substr(0, abbreviationLength) : name);
}

void appendDay(const CalendarDate& date, std::size_t runLength, TextBuffer& out) noexcept {
    if (runLength <= 2) {
        out.append(date.day, runLength);
    } else {
        appendName(dayNames[weekDayOfDays(daysOfDate(date))], runLength, out);
    }
}

void appendMonth(const CalendarDate& date, std::size_t runLength, TextBuffer& out) noexcept {
    if (runLength <= 2) {
        out.append(date.month, runLength);
    } else {
        appendName(monthNames[static_cast<std::size_t>(date.month) - 1], runLength, out);
    }
}

void appendYear(const CalendarDate& date, std::size_t runLength, TextBuffer& out) noexcept {
    switch (runLength) {
    case 1: out.append(date.year % 10, 1); break;
    case 2: out.append(date.year % 100, 2); break;
    default: out.append(date.year, 4);
    }
}

/// Appends the field that a run asks for; false if the letter names none.
bool appendDateField(const SYSTEMTIME& time, char letter, std::size_t runLength,
                     TextBuffer& out) noexcept {
    const CalendarDate date = dateOf(time);
    switch (letter) {
    case 'd': appendDay(date, runLength, out); return true;
    case 'M': appendMonth(date, runLength, out); return true;
    case 'y': appendYear(date, runLength, out); return true;
    case 'g': out.append("A.D."); return true;
    default: return false;
    }
}

/// Appends the field that a run asks for; false if the letter names none.
bool appendTimeField(const SYSTEMTIME& time, char letter, std::size_t runLength,
                     TextBuffer& out) noexcept {
    constexpr unsigned int noon = 12;
    const std::size_t width = std::min<std::size_t>(runLength, 2);
    const unsigned int hour = time.wHour;
    switch (letter) {
    case 'h': out.append(hour % noon == 0 ? noon : hour % noon, width); return true;
    case 'H': out.append(hour, width); return true;
    case 'm': out.append(time.wMinute, width); return true;
    case 's': out.append(time.wSecond, width); return true;
    case 't': out.append(std::string_view(hour < noon ? "AM" : "PM", width)); return true;
    default: return false;
    }
}

using AppendField = bool (*)(const SYSTEMTIME&, char, std::size_t, TextBuffer&) noexcept;

/// Appends the quoted text from `at` on and returns what follows it. A doubled quote is a quote,
/// and without a closing one the text goes to the end.
const char* appendQuoted(const char* at, TextBuffer& out) noexcept {
    for (; *at != '\0'; ++at) {
        if (*at == '\'' && *++at != '\'') {
            break;
        }
        out.append(*at);
    }
    return at;
}

// Pictures are short and fresh in memory, so no library function looks for their end.
int writePicture(const SYSTEMTIME& time, const char* picture, AppendField appendField, char* buffer,
                 int size) noexcept {
    TextBuffer out(buffer, size);
    while (*picture != '\0') {
        const char letter = *picture;
        if (letter == '\'') {
            picture = appendQuoted(picture + 1, out);
            continue;
        }
        const char* end = picture + 1;
        while (*end == letter) {
            ++end;
        }
        const auto length = static_cast<std::size_t>(end - picture);
        if (!appendField(time, letter, length, out)) {
            out.append(std::string_view(picture, length));
        }
        picture = end;
    }
    return out.finish();
}

/// Tests what both operations demand of their arguments alike, and leaves the reason of a refusal.
bool acceptsRequest(std::uint32_t locale, std::uint32_t flags, const SYSTEMTIME* time,
                    const char* picture, const char* buffer, int size) noexcept {
    const bool valid = isKnownLocale(locale) && time != nullptr && picture != nullptr &&
                       TextBuffer::accepts(buffer, size);
    if (!valid) {
        setLastError(ERROR_INVALID_PARAMETER);
    } else if (flags != 0) {
        setLastError(ERROR_INVALID_FLAGS);
    }
    return valid && flags == 0;
}

} // namespace

int GetDateFormatA(std::uint32_t locale, std::uint32_t flags, const SYSTEMTIME* date,
                   const char* picture, char* buffer, int size) noexcept {
    if (!acceptsRequest(locale, flags, date, picture, buffer, size)) {
        return 0;
    }
    if (!isCalendarDate(dateOf(*date))) {
        setLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    return writePicture(*date, picture, appendDateField, buffer, size);
}

int GetTimeFormatA(std::uint32_t locale, std::uint32_t flags, const SYSTEMTIME* time,
                   const char* picture, char* buffer, int size) noexcept {
    if (!acceptsRequest(locale, flags, time, picture, buffer, size)) {
        return 0;
    }
    if (!isTimeOfDay(*time)) {
        setLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    return writePicture(*time, picture, appendTimeField, buffer, size);
}

} // namespace zem::msglib::platform
