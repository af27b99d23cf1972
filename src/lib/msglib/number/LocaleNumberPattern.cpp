#include "number/LocaleNumberPattern.h"

#include "base/LocaleValue.h"

#include <cstdio>

namespace zem::msglib {

namespace {

// More digits than this are no locale value.
constexpr unsigned int mostDigits = 4096;

constexpr std::string_view negativeNumbers[] = {";(#)", ";-#", ";- #", ";#-", ";# -"};
constexpr std::string_view negativePercents[] = {";(#%)", ";-#%", ";- #%", ";#%-", ";#% -"};
constexpr std::string_view negativeCurrencies[] = {
    ";(\xA4#)", ";-\xA4#",  ";\xA4-#",   ";\xA4#-",  ";(#\xA4)", ";-#\xA4",
    ";#-\xA4",  ";#\xA4-",  ";-# \xA4",  ";-\xA4 #", ";# \xA4-", ";\xA4 #-",
    ";\xA4 -#", ";#- \xA4", ";(\xA4 #)", ";(# \xA4)"};

constexpr bool isDigit(char c) noexcept {
    return c >= '0' && c <= '9';
}

// The number that a value begins with, 0 if there is none.
unsigned int countIn(const LocaleNumberValue& value) noexcept {
    const char* text = value.c_str();
    if (isDigit(text[0]) && !isDigit(text[1])) {
        return static_cast<unsigned int>(text[0] - '0');
    }
    unsigned int count = 0;
    return std::sscanf(text, "%u", &count) == 1 ? count : 0;
}

unsigned int digitsIn(std::uint32_t lctype) noexcept {
    const unsigned int count = countIn(LocaleNumberValue(lctype));
    return count <= mostDigits ? count : 0;
}

bool hasLeadingZero() noexcept {
    return LocaleNumberValue(platform::LOCALE_ILZERO).first() == '1';
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

bool LocaleNumberPattern::isAvailable() noexcept {
    const auto locale = platform::ConvertDefaultLocale(platform::localeIdentifier);
    return platform::IsValidLocale(locale, platform::LCID_INSTALLED);
}

LocaleNumberPattern LocaleNumberPattern::of(NumberFormat::FormatType type) noexcept {
    switch (type) {
    case NumberFormat::Currency:
        return {digitsIn(platform::LOCALE_SMONGROUPING), hasLeadingZero(),
                digitsIn(platform::LOCALE_ICURRDIGITS)};
    case NumberFormat::Integer: return {digitsIn(platform::LOCALE_SGROUPING), hasLeadingZero(), 0};
    default:
        return {digitsIn(platform::LOCALE_SGROUPING), hasLeadingZero(),
                digitsIn(platform::LOCALE_IDIGITS)};
    }
}

std::string LocaleNumberPattern::text() const {
    std::string text;
    if (groupSize > 0) {
        text.append("#,", 2).append(groupSize, '#');
    }
    if (leadingZero && !text.empty()) {
        text.back() = '0';
    } else if (leadingZero) {
        text.push_back('0');
    }
    if (fractionDigits > 0) {
        text.append(1, '.').append(fractionDigits, '0');
    }
    return text;
}

std::string_view localeNegativePattern(NumberFormat::FormatType type) noexcept {
    switch (type) {
    case NumberFormat::Currency:
        return formAt(negativeCurrencies, countIn(LocaleNumberValue(platform::LOCALE_INEGCURR)));
    case NumberFormat::Percent: return negativeForm(negativePercents);
    default: return negativeForm(negativeNumbers);
    }
}

CurrencyPlace localeCurrencyPlace() noexcept {
    switch (LocaleNumberValue(platform::LOCALE_ICURRENCY).first()) {
    case '0': return CurrencyPlace::Front;
    case '1': return CurrencyPlace::Back;
    case '2': return CurrencyPlace::FrontAndBlank;
    case '3': return CurrencyPlace::BackAndBlank;
    default: return CurrencyPlace::Nowhere;
    }
}

} // namespace zem::msglib
