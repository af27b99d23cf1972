#include "msglib/NumberFormat.h"

#include "msglib/DecimalFormat.h"
#include "msglib/DecimalFormatSymbols.h"
#include "number/LocaleNumber.h"
#include "number/NumberArgument.h"

// The factories ask `LocaleNumber` for the locale's pattern and create a `DecimalFormat` with it;
// on a platform without the locale, they use a fixed pattern. The setters keep each minimum at or
// below its maximum.

namespace zem::msglib {

namespace {

std::string localePattern(NumberFormat::FormatType type, const char* fallback) {
    const LocaleNumber number(type);
    return number.isKnown() ? number.pattern() : fallback;
}

} // namespace

NumberFormat::~NumberFormat() = default;

std::string& NumberFormat::format(const boost::any& value, std::string& out) const {
    return format(readNumber(value), out);
}

NumberFormat* NumberFormat::getNumberInstance(const std::locale& locale) {
    return createInstance(locale, Number, "#,##0.###");
}

NumberFormat* NumberFormat::getIntegerInstance(const std::locale& locale) {
    return createInstance(locale, Integer, "#,##0.###");
}

NumberFormat* NumberFormat::getCurrencyInstance(const std::locale& locale) {
    return createInstance(locale, Currency, "$#,##0.00;($#,##0.00)");
}

NumberFormat* NumberFormat::getPercentInstance(const std::locale& locale) {
    return createInstance(locale, Percent, "#,##0%");
}

NumberFormat* NumberFormat::createInstance(const std::locale& locale, FormatType type,
                                           const char* fallback) {
    std::string pattern;
    switch (type) {
    case Number: pattern = getNumberFormat(locale, fallback); break;
    case Integer: pattern = getIntegerFormat(locale, fallback); break;
    case Currency: pattern = getCurrencyFormat(locale, fallback); break;
    case Percent: pattern = getPercentFormat(locale, fallback); break;
    }
    return new DecimalFormat(pattern, DecimalFormatSymbols(locale));
}

std::string NumberFormat::getNumberFormat(const std::locale&, const char* fallback) {
    return localePattern(Number, fallback);
}

std::string NumberFormat::getIntegerFormat(const std::locale&, const char* fallback) {
    return localePattern(Integer, fallback);
}

std::string NumberFormat::getCurrencyFormat(const std::locale&, const char* fallback) {
    return localePattern(Currency, fallback);
}

std::string NumberFormat::getPercentFormat(const std::locale&, const char* fallback) {
    return localePattern(Percent, fallback);
}

void NumberFormat::setGroupingUsed(bool value) {
    groupingUsed_ = value;
}

void NumberFormat::setMaximumFractionDigits(int value) {
    maximumFractionDigits_ = value;
    if (minimumFractionDigits_ > value) {
        minimumFractionDigits_ = value;
    }
}

void NumberFormat::setMaximumIntegerDigits(int value) {
    maximumIntegerDigits_ = value;
    if (minimumIntegerDigits_ > value) {
        minimumIntegerDigits_ = value;
    }
}

void NumberFormat::setMinimumFractionDigits(int value) {
    minimumFractionDigits_ = value;
    if (maximumFractionDigits_ < value) {
        setMaximumFractionDigits(value);
    }
}

void NumberFormat::setMinimumIntegerDigits(int value) {
    minimumIntegerDigits_ = value;
    if (maximumIntegerDigits_ < value) {
        setMaximumIntegerDigits(value);
    }
}

} // namespace zem::msglib
