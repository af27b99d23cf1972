#include "msglib/NumberFormat.h"

#include "msglib/DecimalFormat.h"
#include "number/LocaleNumberFormat.h"
#include "number/NumberArgument.h"

namespace zem::msglib {

NumberFormat::~NumberFormat() = default;

std::string& NumberFormat::format(const boost::any& value, std::string& out) const {
    return format(readNumber(value), out);
}

NumberFormat* NumberFormat::getNumberInstance(const std::locale& locale) {
    return createInstance(locale, Number, LocaleNumberFormat::fallbackOf(Number));
}

NumberFormat* NumberFormat::getIntegerInstance(const std::locale& locale) {
    return createInstance(locale, Integer, LocaleNumberFormat::fallbackOf(Integer));
}

NumberFormat* NumberFormat::getCurrencyInstance(const std::locale& locale) {
    return createInstance(locale, Currency, LocaleNumberFormat::fallbackOf(Currency));
}

NumberFormat* NumberFormat::getPercentInstance(const std::locale& locale) {
    return createInstance(locale, Percent, LocaleNumberFormat::fallbackOf(Percent));
}

NumberFormat* NumberFormat::createInstance(const std::locale& locale, FormatType type,
                                           const char* fallback) {
    return new DecimalFormat(LocaleNumberFormat::make(locale, type, fallback));
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
