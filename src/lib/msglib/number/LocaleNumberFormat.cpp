#include "number/LocaleNumberFormat.h"

#include "base/TextOutput.h"
#include "number/LocaleNumberPattern.h"
#include "number/NumberArgument.h"
#include "number/PlainLocaleNumber.h"

namespace zem::msglib {

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

std::shared_ptr<DecimalFormat> LocaleNumberFormat::makeSharedRounded(const std::locale& locale) {
    auto number = makeShared(locale, NumberFormat::Number);
    number->setMaximumFractionDigits(0);
    return number;
}

// A formatter that is used once takes the classic locale: none has a part in the text, and this one
// needs no lock.
void LocaleNumberFormat::append(NumberFormat::FormatType type, const boost::any& argument,
                                TextOutput& out) {
    const double value = readNumber(argument);
    if (!appendPlainLocaleNumber(value, type, out)) {
        make(std::locale::classic(), type, fallbackOf(type)).write(value, out);
    }
}

void LocaleNumberFormat::appendRounded(const boost::any& argument, TextOutput& out) {
    const double value = readNumber(argument);
    if (!appendPlainLocaleNumber(value, NumberFormat::Integer, out)) {
        makeSharedRounded(std::locale::classic())->write(value, out);
    }
}

void LocaleNumberFormat::append(std::string_view pattern, const boost::any& argument,
                                TextOutput& out) {
    DecimalFormat number =
        make(std::locale::classic(), NumberFormat::Number, fallbackOf(NumberFormat::Number));
    number.applyPattern(std::string(pattern));
    number.write(readNumber(argument), out);
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

namespace {

void addCurrencySign(std::string& digits) {
    switch (localeCurrencyPlace()) {
    case CurrencyPlace::Front: digits.insert(0, "\xA4"); break;
    case CurrencyPlace::Back: digits.append("\xA4"); break;
    case CurrencyPlace::FrontAndBlank: digits.insert(0, "\xA4 "); break;
    case CurrencyPlace::BackAndBlank: digits.append(" \xA4"); break;
    case CurrencyPlace::Nowhere: break;
    }
}

std::string localePattern(NumberFormat::FormatType type, const char* fallback) {
    if (!LocaleNumberPattern::isAvailable()) {
        return fallback;
    }
    std::string text = LocaleNumberPattern::of(type).text();
    if (type == NumberFormat::Percent) {
        text.push_back('%');
    } else if (type == NumberFormat::Currency) {
        addCurrencySign(text);
    }
    return text.append(localeNegativePattern(type));
}

} // namespace

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

} // namespace zem::msglib
