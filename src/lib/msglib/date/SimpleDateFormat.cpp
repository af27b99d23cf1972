#include "msglib/SimpleDateFormat.h"

#include "base/Scanning.h"
#include "base/TextOutput.h"
#include "date/CalendarTime.h"
#include "date/DateText.h"
#include "date/RunRenderer.h"

#include <algorithm>
#include <climits>
#include <cstdint>
#include <utility>

namespace zem::msglib {

namespace {

// What a byte of a pattern begins.
enum class Mark : std::uint8_t { Literal, Quote, Date, Time };

struct Marks {
    Mark of[UCHAR_MAX + 1];
};

constexpr Marks marksFor(std::string_view dateLetters, std::string_view timeLetters) noexcept {
    Marks marks{};
    marks.of[static_cast<unsigned char>(quote)] = Mark::Quote;
    for (const char letter : dateLetters) {
        marks.of[static_cast<unsigned char>(letter)] = Mark::Date;
    }
    for (const char letter : timeLetters) {
        marks.of[static_cast<unsigned char>(letter)] = Mark::Time;
    }
    return marks;
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

constexpr std::string_view SimpleDateFormat::datePatternChars_ = "dMyg";
constexpr std::string_view SimpleDateFormat::timePatternChars_ = "hHmst";

SimpleDateFormat::SimpleDateFormat(const std::string& pattern, const std::locale& locale)
    : pattern_(pattern),
      locale_(locale) {}

SimpleDateFormat::SimpleDateFormat(std::string&& pattern, const std::locale& locale)
    : pattern_(std::move(pattern)),
      locale_(locale) {}

SimpleDateFormat::SimpleDateFormat(const SimpleDateFormat& other) = default;

SimpleDateFormat& SimpleDateFormat::operator=(const SimpleDateFormat& other) = default;

SimpleDateFormat::~SimpleDateFormat() = default;

void SimpleDateFormat::applyPattern(const std::string& pattern) {
    pattern_ = pattern;
}

std::string& SimpleDateFormat::format(const boost::any& value, std::string& out) const {
    return TextOutput::to(out, [&](TextOutput& text) { write(value, text); });
}

void SimpleDateFormat::write(const boost::any& value, TextOutput& out) const {
    appendDate(pattern_, value, out);
}

void appendDate(std::string_view pattern, const boost::any& value, TextOutput& out) {
    static constexpr Marks marks =
        marksFor(SimpleDateFormat::datePatternChars_, SimpleDateFormat::timePatternChars_);
    const auto seconds = readSeconds(value);
    const auto time = seconds ? calendarTime(*seconds) : std::nullopt;
    RunRenderer runs(time.value_or(platform::SYSTEMTIME()));
    for (std::size_t pos = 0; pos < pattern.size();) {
        const Mark mark = marks.of[static_cast<unsigned char>(pattern[pos])];
        switch (mark) {
        case Mark::Literal: out.append(pattern[pos++]); break;
        case Mark::Quote: pos = appendQuoted(pattern, pos + 1, out); break;
        case Mark::Date:
        case Mark::Time: {
            const std::size_t end = endOfRun(pattern, pos);
            if (time) {
                runs.append(mark == Mark::Date ? platform::GetDateFormatA
                                               : platform::GetTimeFormatA,
                            pattern[pos], end - pos, out);
            }
            pos = end;
        }
        }
    }
}

} // namespace zem::msglib
