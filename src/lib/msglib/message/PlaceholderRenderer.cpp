#include "message/PlaceholderRenderer.h"

#include "base/Argument.h"
#include "base/TextOutput.h"
#include "date/LocaleDatePattern.h"
#include "msglib/DecimalFormat.h"
#include "msglib/SimpleDateFormat.h"
#include "number/DecimalForm.h"
#include "number/LocaleNumber.h"

#include <locale>
#include <string>

namespace zem::msglib {

namespace {

void appendNumber(NumberFormat::FormatType type, const boost::any& argument, TextOutput& out) {
    LocaleNumber(type).appendArgument(argument, out);
}

// The classic locale needs no lock, and none has a part in the text.
void appendCustomNumber(std::string_view pattern, const boost::any& argument, TextOutput& out) {
    const DecimalFormat format(std::string{pattern}, DecimalFormatSymbols(std::locale::classic()));
    DecimalForm(format).appendArgument(argument, out);
}

} // namespace

void PlaceholderRenderer::appendByKind(const boost::any& argument, TextOutput& out) {
    switch (kindOf(argument)) {
    case ArgumentKind::Text: out.append(heldValue<std::string>(argument)); return;
    case ArgumentKind::Float:
    case ArgumentKind::Double: appendNumber(NumberFormat::Number, argument, out); return;
    case ArgumentKind::Angle:
    case ArgumentKind::Other: return;
    default: appendNumber(NumberFormat::Integer, argument, out);
    }
}

void PlaceholderRenderer::appendByStyle(PlaceholderStyle placeholder, std::string_view style,
                                        const boost::any& argument, TextOutput& out) {
    const auto appendDate = [&](const LocaleDatePattern& pattern) {
        SimpleDateFormat::render(pattern.text(), argument, out);
    };
    switch (placeholder) {
    case PlaceholderStyle::Number: appendNumber(NumberFormat::Number, argument, out); return;
    case PlaceholderStyle::Integer: LocaleNumber::rounded().appendArgument(argument, out); return;
    case PlaceholderStyle::Currency: appendNumber(NumberFormat::Currency, argument, out); return;
    case PlaceholderStyle::Percent: appendNumber(NumberFormat::Percent, argument, out); return;
    case PlaceholderStyle::CustomNumber: appendCustomNumber(style, argument, out); return;
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
