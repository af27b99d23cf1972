#include "msglib/SimpleDateFormat.h"

#include "base/Scanning.h"
#include "base/TextOutput.h"
#include "date/CalendarTime.h"
#include "date/RunRenderer.h"

#include <algorithm>
#include <utility>

namespace zem::msglib {

namespace {

constexpr bool contains(std::string_view letters, char c) noexcept {
    for (const char letter : letters) {
        if (letter == c) {
            return true;
        }
    }
    return false;
}

std::size_t endOfRun(std::string_view pattern, std::size_t pos) noexcept {
    std::size_t end = pos + 1;
    while (holdsAt(pattern, end, pattern[pos])) {
        ++end;
    }
    return end;
}

// Appends quoted text from behind its opening quote and returns the position from which to go on.
std::size_t appendQuoted(std::string_view pattern, std::size_t pos, TextOutput& out) {
    const std::size_t end = std::min(pattern.find(quote, pos), pattern.size());
    out.append(pattern.substr(pos, end - pos));
    if (holdsAt(pattern, end + 1, quote)) {
        out.append(quote);
    }
    return end + 1;
}

} // namespace

// Not inline, since a library with inline variables can't be unloaded.
const std::string_view SimpleDateFormat::datePatternChars_ = "dMyg";
const std::string_view SimpleDateFormat::timePatternChars_ = "hHmst";

SimpleDateFormat::SimpleDateFormat(const std::string& pattern, const std::locale& locale)
    : pattern_(pattern),
      locale_(locale) {}

SimpleDateFormat::SimpleDateFormat(std::string&& pattern, const std::locale& locale)
    : pattern_(std::move(pattern)),
      locale_(locale) {}

SimpleDateFormat::~SimpleDateFormat() = default;

void SimpleDateFormat::applyPattern(const std::string& pattern) {
    pattern_ = pattern;
}

std::string& SimpleDateFormat::format(const boost::any& value, std::string& out) const {
    return TextOutput::to(out, [&](TextOutput& text) { write(value, text); });
}

void SimpleDateFormat::write(const boost::any& value, TextOutput& out) const {
    render(pattern_, value, out);
}

void SimpleDateFormat::render(std::string_view pattern, const boost::any& value, TextOutput& out) {
    const auto seconds = readSeconds(value);
    const auto time = seconds ? calendarTime(*seconds) : std::nullopt;
    RunRenderer runs(time.value_or(platform::SYSTEMTIME()));
    std::size_t pos = 0;
    while (pos < pattern.size()) {
        const char c = pattern[pos];
        if (c == quote) {
            pos = appendQuoted(pattern, pos + 1, out);
            continue;
        }
        const bool isDate = contains(datePatternChars_, c);
        if (!isDate && !contains(timePatternChars_, c)) {
            out.append(c);
            ++pos;
            continue;
        }
        const std::size_t end = endOfRun(pattern, pos);
        if (time) {
            runs.append(isDate ? platform::GetDateFormatA : platform::GetTimeFormatA, c, end - pos,
                        out);
        }
        pos = end;
    }
}

} // namespace zem::msglib
