#include "number/LocaleNumberFormat.h"

#include "base/LocaleValue.h"
#include "number/DigitWriter.h"
#include "number/LocaleNumberPattern.h"
#include "number/NumberArgument.h"

#include <limits>

namespace zem::msglib {

namespace {

// Appends a number that isn't negative as a formatter by the locale's pattern would; false, with
// nothing appended, where the locale's values don't tell all of it.
bool appendPlain(double magnitude, NumberFormat::FormatType type, std::string& out) {
    const LocaleNumberValue zero(platform::LOCALE_SNATIVEDIGITS);
    const LocaleNumberValue grouping(platform::LOCALE_STHOUSAND);
    const LocaleNumberValue decimal(platform::LOCALE_SDECIMAL);
    const bool isFinite = magnitude <= std::numeric_limits<double>::max();
    if (!isFinite || !zero.found() || !grouping.found() || !decimal.found() ||
        !LocaleNumberPattern::isAvailable()) {
        return false;
    }
    const LocaleNumberPattern pattern = type == NumberFormat::Integer
                                            ? LocaleNumberPattern::integer()
                                            : LocaleNumberPattern::number();
    constexpr std::size_t mostIntegerDigits = 309;
    const DigitLayout layout{mostIntegerDigits,      pattern.leadingZero ? 1U : 0U,
                             pattern.fractionDigits, pattern.fractionDigits,
                             pattern.groupSize,      grouping.text(),
                             decimal.text(),         zero.first()};
    appendDigits(magnitude + roundingOf(static_cast<int>(pattern.fractionDigits)), layout, out);
    return true;
}

} // namespace

const char* LocaleNumberFormat::fallbackOf(NumberFormat::FormatType type) noexcept {
    switch (type) {
    case NumberFormat::Currency: return "$#,##0.00;($#,##0.00)";
    case NumberFormat::Percent: return "#,##0%";
    default: return "#,##0.###";
    }
}

DecimalFormat LocaleNumberFormat::make(const std::locale& locale, NumberFormat::FormatType type,
                                       const char* fallback) {
    return DecimalFormat(patternOf(locale, type, fallback), DecimalFormatSymbols(locale));
}

std::shared_ptr<DecimalFormat> LocaleNumberFormat::makeShared(const std::locale& locale,
                                                              NumberFormat::FormatType type) {
    return std::make_shared<DecimalFormat>(patternOf(locale, type, fallbackOf(type)),
                                           DecimalFormatSymbols(locale));
}

void LocaleNumberFormat::append(const boost::any& argument, const std::locale& locale,
                                NumberFormat::FormatType type, std::string& out) {
    const double value = readNumber(argument);
    if (!(value >= 0.0) || !appendPlain(value, type, out)) {
        make(locale, type, fallbackOf(type)).format(value, out);
    }
}

std::string LocaleNumberFormat::patternOf(const std::locale& locale, NumberFormat::FormatType type,
                                          const char* fallback) {
    switch (type) {
    case NumberFormat::Number: return NumberFormat::getNumberFormat(locale, fallback);
    case NumberFormat::Integer: return NumberFormat::getIntegerFormat(locale, fallback);
    case NumberFormat::Currency: return NumberFormat::getCurrencyFormat(locale, fallback);
    case NumberFormat::Percent: return NumberFormat::getPercentFormat(locale, fallback);
    }
    return {};
}

std::string NumberFormat::getNumberFormat(const std::locale&, const char* fallback) {
    if (!LocaleNumberPattern::isAvailable()) {
        return fallback;
    }
    const auto pattern = LocaleNumberPattern::number();
    return pattern.digits().append(pattern.negative);
}

std::string NumberFormat::getIntegerFormat(const std::locale&, const char* fallback) {
    if (!LocaleNumberPattern::isAvailable()) {
        return fallback;
    }
    const auto pattern = LocaleNumberPattern::integer();
    return pattern.digits().append(pattern.negative);
}

std::string NumberFormat::getPercentFormat(const std::locale&, const char* fallback) {
    if (!LocaleNumberPattern::isAvailable()) {
        return fallback;
    }
    const auto pattern = LocaleNumberPattern::percent();
    return pattern.digits().append(1, '%').append(pattern.negative);
}

std::string NumberFormat::getCurrencyFormat(const std::locale&, const char* fallback) {
    if (!LocaleNumberPattern::isAvailable()) {
        return fallback;
    }
    const auto pattern = LocaleNumberPattern::currency();
    std::string text = pattern.digits();
    addCurrencySign(text);
    return text.append(pattern.negative);
}

} // namespace zem::msglib
