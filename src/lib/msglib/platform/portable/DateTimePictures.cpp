#include "platform/portable/Calendar.h"
#include "platform/portable/Locales.h"
#include "platform/portable/TextBuffer.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

// A date or time and a picture go in, text in the caller's buffer comes out. The picture is read
// run by run: a run of a field letter is replaced by the field, other runs and quoted text are
// copied. Each field is written to a small array first, since the caller's buffer may be too short;
// a picture that is a single field is written directly if the buffer certainly has space for it.

namespace zem::msglib::platform {

namespace {

/// The size of the longest field. Writing any field may overwrite as many bytes.
constexpr int longestField = 12;

/// The name of a day or month, in an array of the size that is always copied.
struct Name {
    char text[longestField];
    std::size_t length;
};

constexpr std::size_t abbreviationLength = 3;

constexpr Name dayNames[] = {{"Sunday", 6},   {"Monday", 6}, {"Tuesday", 7}, {"Wednesday", 9},
                             {"Thursday", 8}, {"Friday", 6}, {"Saturday", 8}};

constexpr Name monthNames[] = {{"January", 7},   {"February", 8}, {"March", 5},    {"April", 5},
                               {"May", 3},       {"June", 4},     {"July", 4},     {"August", 6},
                               {"September", 9}, {"October", 7},  {"November", 8}, {"December", 8}};

/// Writes a name or, for a run of three letters, its abbreviation. Returns the end of the field, as
/// all functions below do.
char* writeName(const Name& name, std::size_t runLength, char* at) noexcept {
    std::memcpy(at, name.text, sizeof name.text);
    return at + (runLength == 3 ? abbreviationLength : name.length);
}

/// Writes a number below 100, with a leading zero if `width` is 2.
char* writeNumber(unsigned int number, std::size_t width, char* at) noexcept {
    if (number >= 10 || width == 2) {
        *at++ = static_cast<char>('0' + number / 10);
    }
    *at++ = static_cast<char>('0' + number % 10);
    return at;
}

char* writeDay(const CalendarDate& date, std::size_t runLength, char* at) noexcept {
    return runLength <= 2 ? writeNumber(date.day, runLength, at)
                          : writeName(dayNames[weekDayOfDays(daysOfDate(date))], runLength, at);
}

char* writeMonth(const CalendarDate& date, std::size_t runLength, char* at) noexcept {
    return runLength <= 2
               ? writeNumber(date.month, runLength, at)
               : writeName(monthNames[static_cast<std::size_t>(date.month) - 1], runLength, at);
}

char* writeYear(const CalendarDate& date, std::size_t runLength, char* at) noexcept {
    if (runLength <= 2) {
        return writeNumber(date.year % (runLength == 1 ? 10 : 100), runLength, at);
    }
    if (date.year >= 10'000) {
        *at++ = static_cast<char>('0' + date.year / 10'000);
    }
    return writeNumber(date.year % 100, 2, writeNumber(date.year / 100 % 100, 2, at));
}

char* writeText(std::string_view text, char* at) noexcept {
    for (const char c : text) {
        *at++ = c;
    }
    return at;
}

/// Writes the field of a run; returns null if the letter isn't a field letter.
char* writeDateField(const SYSTEMTIME& time, char letter, std::size_t runLength,
                     char* at) noexcept {
    const CalendarDate date = dateOf(time);
    switch (letter) {
    case 'd': return writeDay(date, runLength, at);
    case 'M': return writeMonth(date, runLength, at);
    case 'y': return writeYear(date, runLength, at);
    case 'g': return writeText("A.D.", at);
    default: return nullptr;
    }
}

/// Writes the field of a run; returns null if the letter isn't a field letter.
char* writeTimeField(const SYSTEMTIME& time, char letter, std::size_t runLength,
                     char* at) noexcept {
    constexpr unsigned int noon = 12;
    const std::size_t width = std::min<std::size_t>(runLength, 2);
    const unsigned int hour = time.wHour;
    switch (letter) {
    case 'h': return writeNumber(hour % noon == 0 ? noon : hour % noon, width, at);
    case 'H': return writeNumber(hour, width, at);
    case 'm': return writeNumber(time.wMinute, width, at);
    case 's': return writeNumber(time.wSecond, width, at);
    case 't': return writeText(std::string_view(hour < noon ? "AM" : "PM", width), at);
    default: return nullptr;
    }
}

const char* endOfRun(const char* run) noexcept {
    const char* end = run + 1;
    while (*end == *run) {
        ++end;
    }
    return end;
}

/// Appends the quoted text from `at` on and returns the position after it. A doubled apostrophe is
/// a plain one; without a closing apostrophe, the text extends to the end.
const char* appendQuoted(const char* at, TextBuffer& out) noexcept {
    for (; *at != '\0'; ++at) {
        if (*at == '\'' && *++at != '\'') {
            break;
        }
        out.append(*at);
    }
    return at;
}

template <class WriteField>
[[gnu::noinline]] int writeRuns(const SYSTEMTIME& time, const char* picture, WriteField writeField,
                                char* buffer, int size) noexcept {
    TextBuffer out(buffer, size);
    while (*picture != '\0') {
        if (*picture == '\'') {
            picture = appendQuoted(picture + 1, out);
            continue;
        }
        char field[longestField];
        const auto length = static_cast<std::size_t>(endOfRun(picture) - picture);
        const char* const end = writeField(time, *picture, length, field);
        out.append(end != nullptr ? std::string_view(field, static_cast<std::size_t>(end - field))
                                  : std::string_view(picture, length));
        picture += length;
    }
    return out.finish();
}

/// Writes a whole picture; a single field that certainly fits goes directly into the buffer.
template <class WriteField>
int writePicture(const SYSTEMTIME& time, const char* picture, WriteField writeField, char* buffer,
                 int size) noexcept {
    const char* const end = *picture != '\0' ? endOfRun(picture) : picture;
    if (*end == '\0' && size > longestField) {
        const auto length = static_cast<std::size_t>(end - picture);
        if (char* const fieldEnd = writeField(time, *picture, length, buffer)) {
            *fieldEnd = '\0';
            return static_cast<int>(fieldEnd - buffer) + 1;
        }
    }
    return writeRuns(time, picture, writeField, buffer, size);
}

/// Checks the requirements that both operations share, and sets the last error if one isn't met.
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
    return writePicture(*date, picture, writeDateField, buffer, size);
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
    return writePicture(*time, picture, writeTimeField, buffer, size);
}

} // namespace zem::msglib::platform
