#include "number/LocaleNumberFormat.h"

#include "base/LocaleValue.h"

#include <cstdio>
#include <iterator>
#include <string>
#include <string_view>

namespace zem::msglib {

namespace {

constexpr char currencyMark = '\xA4';

// More digits than this are no locale value.
constexpr unsigned int mostDigits = 4096;

constexpr std::string_view negativeNumbers[] = {";(#)", ";-#", ";- #", ";#-", ";# -"};
constexpr std::string_view negativePercents[] = {";(#%)", ";-#%", ";- #%", ";#%-", ";#% -"};
constexpr std::string_view negativeCurrencies[] = {
    ";(\xA4#)", ";-\xA4#",  ";\xA4-#",   ";\xA4#-",  ";(#\xA4)", ";-#\xA4",
    ";#-\xA4",  ";#\xA4-",  ";-# \xA4",  ";-\xA4 #", ";# \xA4-", ";\xA4 #-",
    ";\xA4 -#", ";#- \xA4", ";(\xA4 #)", ";(# \xA4)"};

bool localeIsInstalled() noexcept {
    const auto locale = platform::ConvertDefaultLocale(platform::localeIdentifier);
    return platform::IsValidLocale(locale, platform::LCID_INSTALLED);
}

// The number that a value begins with, 0 if there is none.
unsigned int countIn(const LocaleNumberValue& value) noexcept {
    const char first = value.first();
    const char second = first == '\0' ? first : value.c_str()[1];
    if (first >= '0' && first <= '9' && (second < '0' || second > '9')) {
        return static_cast<unsigned int>(first - '0');
    }
    unsigned int count = 0;
    return std::sscanf(value.c_str(), "%u", &count) == 1 ? count : 0;
}

unsigned int digitsIn(const LocaleNumberValue& value) noexcept {
    const unsigned int count = countIn(value);
    return count <= mostDigits ? count : 0;
}

std::string integerPart(std::uint32_t groupingType) {
    std::string text;
    if (const unsigned int size = digitsIn(LocaleNumberValue(groupingType)); size > 0) {
        text.assign("#,").append(size, '#');
    }
    if (LocaleNumberValue(platform::LOCALE_ILZERO).first() == '1') {
        if (!text.empty()) {
            text.pop_back();
        }
        text.push_back('0');
    }
    return text;
}

void appendFraction(std::uint32_t digitsType, std::string& text) {
    if (const unsigned int digits = digitsIn(LocaleNumberValue(digitsType)); digits > 0) {
        text.append(1, '.').append(digits, '0');
    }
}

void addCurrencyMark(std::string& text) {
    const char blankAndMark[] = {' ', currencyMark};
    const char markAndBlank[] = {currencyMark, ' '};
    switch (LocaleNumberValue(platform::LOCALE_ICURRENCY).first()) {
    case '0': text.insert(text.begin(), currencyMark); break;
    case '1': text.push_back(currencyMark); break;
    case '2': text.insert(0, markAndBlank, sizeof markAndBlank); break;
    case '3': text.append(blankAndMark, sizeof blankAndMark); break;
    default: break;
    }
}

template <std::size_t Size>
std::string_view formAt(const std::string_view (&forms)[Size], std::size_t number) noexcept {
    return number < Size ? forms[number] : std::string_view();
}

template <std::size_t Size>
std::string_view negativeForm(const std::string_view (&forms)[Size]) noexcept {
    const char first = LocaleNumberValue(platform::LOCALE_INEGNUMBER).first();
    return first < '0' ? std::string_view() : formAt(forms, static_cast<std::size_t>(first - '0'));
}

} // namespace

DecimalFormat LocaleNumberFormat::make(const std::locale& locale, NumberFormat::FormatType type,
                                       const char* fallback) {
    std::string pattern;
    switch (type) {
    case NumberFormat::Number: pattern = NumberFormat::getNumberFormat(locale, fallback); break;
    case NumberFormat::Integer: pattern = NumberFormat::getIntegerFormat(locale, fallback); break;
    case NumberFormat::Currency: pattern = NumberFormat::getCurrencyFormat(locale, fallback); break;
    case NumberFormat::Percent: pattern = NumberFormat::getPercentFormat(locale, fallback); break;
    }
    return DecimalFormat(pattern, DecimalFormatSymbols(locale));
}

std::string NumberFormat::getNumberFormat(const std::locale&, const char* fallback) {
    if (!localeIsInstalled()) {
        return fallback;
    }
    std::string text = integerPart(platform::LOCALE_SGROUPING);
    appendFraction(platform::LOCALE_IDIGITS, text);
    return text.append(negativeForm(negativeNumbers));
}

std::string NumberFormat::getIntegerFormat(const std::locale&, const char* fallback) {
    if (!localeIsInstalled()) {
        return fallback;
    }
    return integerPart(platform::LOCALE_SGROUPING).append(negativeForm(negativeNumbers));
}

std::string NumberFormat::getPercentFormat(const std::locale&, const char* fallback) {
    if (!localeIsInstalled()) {
        return fallback;
    }
    std::string text = integerPart(platform::LOCALE_SGROUPING);
    appendFraction(platform::LOCALE_IDIGITS, text);
    return text.append(1, '%').append(negativeForm(negativePercents));
}

std::string NumberFormat::getCurrencyFormat(const std::locale&, const char* fallback) {
    if (!localeIsInstalled()) {
        return fallback;
    }
    std::string text = integerPart(platform::LOCALE_SMONGROUPING);
    appendFraction(platform::LOCALE_ICURRDIGITS, text);
    addCurrencyMark(text);
    const unsigned int form = countIn(LocaleNumberValue(platform::LOCALE_INEGCURR));
    return text.append(formAt(negativeCurrencies, form));
}

} // namespace zem::msglib
