#include "msglib/SimpleDateFormat.h"

#include "base/TextOutput.h"
#include "date/CalendarTime.h"
#include "date/DateReader.h"
#include "date/DateText.h"
#include "date/RunRenderer.h"

#include <utility>

namespace zem::msglib {

constexpr std::string_view SimpleDateFormat::datePatternChars_ = dateLetters;
constexpr std::string_view SimpleDateFormat::timePatternChars_ = timeLetters;

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
    const auto seconds = readSeconds(value);
    const auto time = seconds ? calendarTime(*seconds) : std::nullopt;
    RunRenderer runs(time.value_or(platform::SYSTEMTIME()));
    readDatePattern(pattern, [&](DatePiece piece, std::string_view text) {
        switch (piece) {
        case DatePiece::Literal: out.append(text.front()); break;
        case DatePiece::Quoted: out.append(text); break;
        case DatePiece::Date:
        case DatePiece::Time:
            if (time) {
                runs.append(piece == DatePiece::Date ? platform::GetDateFormatA
                                                     : platform::GetTimeFormatA,
                            text.front(), text.size(), out);
            }
        }
    });
}

} // namespace zem::msglib
