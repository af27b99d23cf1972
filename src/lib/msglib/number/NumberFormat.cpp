#include "msglib/NumberFormat.h"

#include "base/Argument.h"
#include "msglib/DecimalFormat.h"
#include "number/LocaleNumberFormat.h"

#include <type_traits>

namespace zem::msglib {

namespace {

struct ReadNumber {
    template <class Number, class = std::enable_if_t<std::is_arithmetic_v<Number>>>
    double operator()(Number value) const {
        return static_cast<double>(value);
    }
    double operator()(const geom::Angle& value) const {
        return (value.radians() * 180.0) / 3.141592653589793;
    }
    double operator()(const std::string&) const { raise(Failure::NotANumber); }
    double operator()(UnknownKind) const { raise(Failure::NotANumber); }
};

} // namespace

NumberFormat::~NumberFormat() = default;

std::string& NumberFormat::format(const boost::any& value, std::string& out) const {
    return format(visitArgument(value, ReadNumber()), out);
}

NumberFormat* NumberFormat::getNumberInstance(const std::locale& locale) {
    return createInstance(locale, Number, LocaleNumberFormat::numberFallback);
}

NumberFormat* NumberFormat::getIntegerInstance(const std::locale& locale) {
    return createInstance(locale, Integer, LocaleNumberFormat::integerFallback);
}

NumberFormat* NumberFormat::getCurrencyInstance(const std::locale& locale) {
    return createInstance(locale, Currency, LocaleNumberFormat::currencyFallback);
}

NumberFormat* NumberFormat::getPercentInstance(const std::locale& locale) {
    return createInstance(locale, Percent, LocaleNumberFormat::percentFallback);
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
