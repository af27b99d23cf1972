#include "message/PlaceholderRenderer.h"

#include "base/Argument.h"
#include "base/TextOutput.h"
#include "date/LocaleDatePattern.h"
#include "msglib/SimpleDateFormat.h"
#include "number/LocaleNumberFormat.h"

namespace zem::msglib {

void PlaceholderRenderer::appendByKind(const boost::any& argument, TextOutput& out) {
    switch (kindOf(argument)) {
    case ArgumentKind::Text: out.append(heldValue<std::string>(argument)); return;
    case ArgumentKind::Float:
    case ArgumentKind::Double:
        LocaleNumberFormat::append(NumberFormat::Number, argument, out);
        return;
    case ArgumentKind::Angle:
    case ArgumentKind::Other: return;
    default: LocaleNumberFormat::append(NumberFormat::Integer, argument, out);
    }
}

void PlaceholderRenderer::appendByStyle(PlaceholderStyle placeholder, std::string_view style,
                                        const boost::any& argument, TextOutput& out) {
    const auto appendNumber = [&](NumberFormat::FormatType type) {
        LocaleNumberFormat::append(type, argument, out);
    };
    const auto appendDate = [&](const LocaleDatePattern& pattern) {
        SimpleDateFormat::render(pattern.text(), argument, out);
    };
    switch (placeholder) {
    case PlaceholderStyle::Number: appendNumber(NumberFormat::Number); return;
    case PlaceholderStyle::Integer: LocaleNumberFormat::appendRounded(argument, out); return;
    case PlaceholderStyle::Currency: appendNumber(NumberFormat::Currency); return;
    case PlaceholderStyle::Percent: appendNumber(NumberFormat::Percent); return;
    case PlaceholderStyle::CustomNumber: LocaleNumberFormat::append(style, argument, out); return;
    case PlaceholderStyle::ShortDate: appendDate(LocaleDatePattern(DateFormat::Short)); return;
    case PlaceholderStyle::MediumDate: appendDate(LocaleDatePattern(DateFormat::Medium)); return;
    case PlaceholderStyle::LongDate: appendDate(LocaleDatePattern(DateFormat::Long)); return;
    case PlaceholderStyle::Time: appendDate(LocaleDatePattern::time()); return;
    case PlaceholderStyle::CustomDate: SimpleDateFormat::render(style, argument, out); return;
    case PlaceholderStyle::ByKind:
    case PlaceholderStyle::Choice: appendByKind(argument, out);
    }
}

} // namespace zem::msglib
