#include "tool/text/ArgumentText.h"

#include "tool/text/CannotRun.h"
#include "tool/text/Strings.h"

#include "date/CalendarTime.h"
#include "platform/LocaleServices.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>
#include <optional>
#include <system_error>

// The text of an argument on the command line goes in, a value of the fitting type comes out. The
// form decides: a text in quotation marks, a Boolean, a number, a date, or any other text. The
// other functions write values in a form that is read as the same value.

namespace zem::msglib::tool {

namespace {

constexpr std::int64_t unitsPerSecond = 10'000'000;
constexpr std::int64_t secondsTo1970 = 11'644'473'600; // since 1601

[[noreturn]] void refuse(std::string_view text, const char* why) {
    throw CannotRun("argument " + std::string(text) + ": " + why +
                    "; a text has to be in quotation marks");
}

/// Reads a number that is the whole text. Returns nothing if the text is not a number.
template <class Number>
std::optional<Number> readWhole(std::string_view text, bool& isOutOfRange) {
    Number value{};
    const char* const end = text.data() + text.size();
    const auto [position, error] = std::from_chars(text.data(), end, value);
    const bool isWhole = position == end && error != std::errc::invalid_argument;
    isOutOfRange = isWhole && error == std::errc::result_out_of_range;
    return isWhole && !isOutOfRange ? std::optional(value) : std::nullopt;
}

boost::any integerOf(long long value) {
    constexpr long long least = std::numeric_limits<int>::min();
    constexpr long long most = std::numeric_limits<int>::max();
    return value >= least && value <= most ? boost::any(static_cast<int>(value))
                                           : boost::any(value);
}

/// Returns the value of a number; empty if the text is not a number.
boost::any readNumber(std::string_view text) {
    constexpr std::string_view special[] = {"inf", "-inf", "nan"};
    const std::size_t digit = text.find_first_not_of("-.");
    const bool hasDigit = digit != std::string_view::npos && isDigit(text[digit]);
    if (!hasDigit && std::find(std::begin(special), std::end(special), text) == std::end(special)) {
        return {};
    }
    bool isOutOfRange = false;
    if (const auto value = readWhole<long long>(text, isOutOfRange)) {
        return integerOf(*value);
    }
    if (isOutOfRange) {
        if (const auto value = readWhole<unsigned long long>(text, isOutOfRange)) {
            return *value;
        }
        refuse(text, "an integer has 64 bits at most");
    }
    const auto value = readWhole<double>(text, isOutOfRange);
    if (isOutOfRange) {
        refuse(text, "the number is out of range");
    }
    return value ? boost::any(*value) : boost::any();
}

/// Returns whether a text has a form, in which each `0` means any digit.
bool hasForm(std::string_view text, std::string_view form) {
    return std::equal(text.begin(), text.end(), form.begin(), form.end(), [](char byte, char mark) {
        return mark == '0' ? isDigit(byte) : byte == mark;
    });
}

bool isTime(std::string_view text) {
    constexpr std::string_view forms[] = {"0000-00-00", "0000-00-00T00:00", "0000-00-00T00:00:00",
                                          "0000-00-00 00:00", "0000-00-00 00:00:00"};
    if (!text.empty() && text.back() == 'Z' && text.size() > forms[0].size()) {
        text.remove_suffix(1);
    }
    return std::any_of(std::begin(forms), std::end(forms),
                       [text](std::string_view form) { return hasForm(text, form); });
}

/// Returns the number at a position of a text with the form of a time; 0 after its end.
std::uint16_t fieldAt(std::string_view text, std::size_t position, std::size_t digits) {
    std::uint16_t value = 0;
    if (position < text.size()) {
        std::from_chars(text.data() + position, text.data() + position + digits, value);
    }
    return value;
}

std::int64_t readTime(std::string_view text) {
    const platform::SYSTEMTIME time = {
        fieldAt(text, 0, 4),  fieldAt(text, 5, 2),  0, fieldAt(text, 8, 2), fieldAt(text, 11, 2),
        fieldAt(text, 14, 2), fieldAt(text, 17, 2), 0};
    platform::FILETIME count;
    if (!platform::SystemTimeToFileTime(&time, &count)) {
        refuse(text, "there is no such date or time of day, or it is before 1601");
    }
    const auto units =
        static_cast<std::int64_t>(std::uint64_t{count.dwHighDateTime} << 32 | count.dwLowDateTime);
    return units / unitsPerSecond - secondsTo1970;
}

std::string textOf(double value) {
    std::array<char, 32> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    std::string text(buffer.data(), end);
    return text.find_first_of(".en") == std::string::npos ? text + ".0" : text;
}

/// Returns whether a text is read as itself without quotation marks, and is one word that no shell
/// changes.
bool isPlain(std::string_view text) {
    constexpr std::string_view special = "\"'\\$`!*?[]{}()<>|&;#~";
    return !text.empty() && !isDigit(text.front()) && text.front() != '-' && text.front() != '.' &&
           std::all_of(text.begin(), text.end(),
                       [special](char byte) {
                           return static_cast<unsigned char>(byte) > 0x20 && byte != 0x7F &&
                                  special.find(byte) == std::string_view::npos;
                       }) &&
           readArgument(std::string(text)).value.type() == typeid(std::string);
}

} // namespace

WrittenArgument readArgument(const std::string& text) {
    if (text.size() >= 2 && text.front() == '"' && text.back() == '"') {
        return {text, text.substr(1, text.size() - 2)};
    }
    if (text == "true" || text == "false") {
        return {text, text == "true"};
    }
    if (isTime(text)) {
        return {text, static_cast<long long>(readTime(text))};
    }
    boost::any number = readNumber(text);
    return {text, number.empty() ? boost::any(text) : number};
}

WrittenArgument numberArgument(double value) {
    constexpr double mostWhole = 1e15;
    if (value == std::trunc(value) && std::abs(value) < mostWhole) {
        const auto whole = static_cast<long long>(value);
        return {std::to_string(whole), integerOf(whole)};
    }
    return {textOf(value), value};
}

WrittenArgument textArgument(std::string_view text) {
    std::string written(text);
    return {isPlain(text) ? written : '"' + written + '"', std::string(text)};
}

WrittenArgument timeArgument(std::int64_t seconds) {
    const platform::SYSTEMTIME time = calendarTime(seconds).value_or(platform::SYSTEMTIME());
    std::array<char, 64> buffer;
    int length = std::snprintf(buffer.data(), buffer.size(), "%04d-%02d-%02dT%02d:%02d", time.wYear,
                               time.wMonth, time.wDay, time.wHour, time.wMinute);
    std::string text(buffer.data(), static_cast<std::size_t>(length));
    if (time.wSecond != 0) {
        length = std::snprintf(buffer.data(), buffer.size(), ":%02d", time.wSecond);
        text.append(buffer.data(), static_cast<std::size_t>(length));
    }
    return {text, static_cast<long long>(seconds)};
}

} // namespace zem::msglib::tool
