#include "message/FormatElement.h"

#include "base/Failure.h"
#include "date/LocaleDatePattern.h"
#include "message/PlaceholderStyle.h"
#include "msglib/ChoiceFormat.h"
#include "msglib/DecimalFormat.h"
#include "msglib/SimpleDateFormat.h"
#include "number/LocaleNumber.h"

#include <utility>

namespace zem::msglib {

namespace {

std::shared_ptr<Format> makeDateFormat(std::string pattern, const std::locale& locale) {
    return std::make_shared<SimpleDateFormat>(std::move(pattern), locale);
}

std::shared_ptr<Format> makeDateFormat(DateFormat::Style style, const std::locale& locale) {
    return makeDateFormat(std::string(LocaleDatePattern(style).text()), locale);
}

std::shared_ptr<DecimalFormat> makeNumberFormat(NumberFormat::FormatType type,
                                                const std::locale& locale) {
    return std::make_shared<DecimalFormat>(LocaleNumber(type).pattern(),
                                           DecimalFormatSymbols(locale));
}

std::shared_ptr<DecimalFormat> makeRoundedFormat(const std::locale& locale) {
    auto number = makeNumberFormat(NumberFormat::Number, locale);
    number->setMaximumFractionDigits(0);
    return number;
}

} // namespace

void FormatElement::buildFormat(const std::locale& locale) {
    switch (placeholderStyle(type_, style_)) {
    case PlaceholderStyle::ByKind: return;
    case PlaceholderStyle::Number: format_ = makeNumberFormat(NumberFormat::Number, locale); return;
    case PlaceholderStyle::Integer: format_ = makeRoundedFormat(locale); return;
    case PlaceholderStyle::Currency:
        format_ = makeNumberFormat(NumberFormat::Currency, locale);
        return;
    case PlaceholderStyle::Percent:
        format_ = makeNumberFormat(NumberFormat::Percent, locale);
        return;
    case PlaceholderStyle::CustomNumber: buildCustomNumber(locale); return;
    case PlaceholderStyle::ShortDate: format_ = makeDateFormat(DateFormat::Short, locale); return;
    case PlaceholderStyle::MediumDate: format_ = makeDateFormat(DateFormat::Medium, locale); return;
    case PlaceholderStyle::LongDate: format_ = makeDateFormat(DateFormat::Long, locale); return;
    case PlaceholderStyle::Time:
        format_ = makeDateFormat(std::string(LocaleDatePattern::time().text()), locale);
        return;
    case PlaceholderStyle::CustomDate: format_ = makeDateFormat(style_, locale); return;
    case PlaceholderStyle::Choice: buildChoice(); return;
    }
}

// A pattern that fails leaves the formatter as far as it was compiled.
void FormatElement::buildCustomNumber(const std::locale& locale) {
    const auto number = makeNumberFormat(NumberFormat::Number, locale);
    format_ = number;
    number->applyPattern(style_);
}

void FormatElement::buildChoice() {
    if (style_.empty()) {
        raise(Failure::ChoiceStyleMissing);
    }
    format_ = std::make_shared<ChoiceFormat>(style_);
}

} // namespace zem::msglib
