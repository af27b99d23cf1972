#include "number/LocaleNumber.h"

#include "base/LocaleValue.h"
#include "base/TextOutput.h"
#include "number/NumberArgument.h"
#include "number/NumberWriter.h"

#include <cstdint>
#include <cstdio>

// The patterns that locale values produce vary only in three digit counts and in affixes from small
// tables. So the locale values are read into these fields, and a number is rendered from them
// without compiling a pattern. `pattern` writes the text of the pattern from the same fields.

namespace zem::msglib {

namespace {

constexpr char currencySign = '\xA4';

// A count beyond this is not a valid locale value and becomes 0.
constexpr unsigned int maxDigits = 4096;

constexpr Affixes negativeNumbers[] = {{"(", ")"}, {"-", ""}, {"- ", ""}, {"", "-"}, {"", " -"}};
constexpr Affixes negativePercents[] = {
    {"(", "%)"}, {"-", "%"}, {"- ", "%"}, {"", "%-"}, {"", "% -"}};
constexpr Affixes negativeCurrencies[] = {
    {"(\xA4", ")"}, {"-\xA4", ""},  {"\xA4-", ""},   {"\xA4", "-"},  {"(", "\xA4)"}, {"-", "\xA4"},
    {"", "-\xA4"},  {"", "\xA4-"},  {"-", " \xA4"},  {"-\xA4 ", ""}, {"", " \xA4-"}, {"\xA4 ", "-"},
    {"\xA4 -", ""}, {"", "- \xA4"}, {"(\xA4 ", ")"}, {"(", " \xA4)"}};

template <std::size_t Size>
Affixes affixesAt(const Affixes (&table)[Size], std::size_t number) noexcept {
    return number < Size ? table[number] : Affixes();
}

constexpr bool isDigit(char c) noexcept {
    return c >= '0' && c <= '9';
}

// Returns the number at the beginning of a value, or 0 if there is none.
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
    return count <= maxDigits ? count : 0;
}

bool isLocaleKnown() noexcept {
    const auto locale = platform::ConvertDefaultLocale(platform::localeIdentifier);
    return platform::IsValidLocale(locale, platform::LCID_INSTALLED);
}

// A symbol. If the platform lacks it, the text is the default of `DecimalFormatSymbols`.
class LocaleSymbol {
public:
    LocaleSymbol(std::uint32_t lctype, std::string_view defaultText) noexcept
        : value_(lctype),
          default_(defaultText) {}

    std::string_view text() const noexcept { return value_.found() ? value_.text() : default_; }
    char first() const noexcept { return value_.found() ? value_.first() : default_.front(); }

private:
    LocaleNumberValue value_;
    std::string_view default_;
};

} // namespace

// The form (see NumberWriter.h), with the symbols between digits in buffers of its own.
class LocaleNumber::Form {
public:
    explicit Form(const LocaleNumber& number) noexcept : Form(number, number.isMonetary()) {}

    Affixes positiveAffixes() const noexcept { return number_.affixes_; }
    Affixes negativeAffixes() const noexcept { return number_.negativeAffixes(); }

    static bool isEmpty(std::string_view affix) noexcept {
        const bool isSymbol = affix.size() == 1 && affix.front() == currencySign;
        return affix.empty() || (isSymbol && currencySymbol().text().empty());
    }

    static void appendAffix(std::string_view affix, TextOutput& out) {
        for (const char byte : affix) {
            if (byte == currencySign) {
                appendCurrencySymbol(out);
            } else {
                out.append(byte);
            }
        }
    }

    static void appendMinusSign(TextOutput& out) {
        out.append(LocaleSymbol(platform::LOCALE_SNEGATIVESIGN, "-").text());
    }

    int multiplier() const noexcept { return number_.type_ == NumberFormat::Percent ? 100 : 1; }

    double rounding() const noexcept {
        return roundingOf(static_cast<int>(number_.maximumFractionDigits_));
    }

    // The locale values have no exponential notation.
    static ScaledNumber scale(double x) noexcept { return {x, 0}; }
    static void appendExponent(std::int64_t, TextOutput&) noexcept {}

    DigitLayout digitLayout() const noexcept {
        constexpr std::size_t maxIntegerDigits = 309;
        return {maxIntegerDigits,
                number_.hasLeadingZero_ ? 1U : 0U,
                number_.maximumFractionDigits_,
                number_.minimumFractionDigits_,
                number_.groupSize_,
                grouping_.text(),
                decimal_.text(),
                zero_.first()};
    }

    static std::string_view naN() noexcept { return "1.#NaN"; }
    static std::string_view infinity() noexcept { return "1.#INF"; }

private:
    Form(const LocaleNumber& number, bool monetary) noexcept
        : number_(number),
          zero_(platform::LOCALE_SNATIVEDIGITS, "0"),
          grouping_(monetary ? platform::LOCALE_SMONTHOUSANDSEP : platform::LOCALE_STHOUSAND, ","),
          decimal_(monetary ? platform::LOCALE_SMONDECIMALSEP : platform::LOCALE_SDECIMAL, ".") {}

    static LocaleSymbol currencySymbol() noexcept { return {platform::LOCALE_SCURRENCY, "$"}; }

    static void appendCurrencySymbol(TextOutput& out) { out.append(currencySymbol().text()); }

    const LocaleNumber& number_;
    LocaleSymbol zero_;
    LocaleSymbol grouping_;
    LocaleSymbol decimal_;
};

LocaleNumber::LocaleNumber(NumberFormat::FormatType type) noexcept
    : type_(type),
      isKnown_(isLocaleKnown()) {
    if (isKnown_) {
        readValues();
    } else {
        fallBack();
    }
}

// This differs from `NumberFormat::Integer` only in the fallback pattern, which has a fraction.
LocaleNumber LocaleNumber::rounded() noexcept {
    LocaleNumber number(NumberFormat::Integer);
    number.maximumFractionDigits_ = 0;
    return number;
}

void LocaleNumber::readValues() noexcept {
    const bool isAmount = type_ == NumberFormat::Currency;
    groupSize_ = digitsIn(isAmount ? platform::LOCALE_SMONGROUPING : platform::LOCALE_SGROUPING);
    hasLeadingZero_ = LocaleNumberValue(platform::LOCALE_ILZERO).first() == '1';
    if (type_ != NumberFormat::Integer) {
        minimumFractionDigits_ =
            digitsIn(isAmount ? platform::LOCALE_ICURRDIGITS : platform::LOCALE_IDIGITS);
        maximumFractionDigits_ = minimumFractionDigits_;
    }
    if (isAmount) {
        readCurrencyMark();
    } else if (type_ == NumberFormat::Percent) {
        affixes_.suffix = "%";
    }
}

// In a pattern without digit marks nothing ends the prefix, so the suffix is part of it.
void LocaleNumber::readCurrencyMark() noexcept {
    std::string_view& back = hasDigitMarks() ? affixes_.suffix : affixes_.prefix;
    switch (LocaleNumberValue(platform::LOCALE_ICURRENCY).first()) {
    case '0': affixes_.prefix = "\xA4"; break;
    case '1': back = "\xA4"; break;
    case '2': affixes_.prefix = "\xA4 "; break;
    case '3': back = " \xA4"; break;
    default: break;
    }
}

// The fields of the fallback patterns "#,##0.###", "$#,##0.00;($#,##0.00)" and "#,##0%".
void LocaleNumber::fallBack() noexcept {
    switch (type_) {
    case NumberFormat::Currency:
        minimumFractionDigits_ = 2;
        maximumFractionDigits_ = 2;
        affixes_.prefix = "$";
        break;
    case NumberFormat::Percent: affixes_.suffix = "%"; break;
    default: maximumFractionDigits_ = 3;
    }
}

bool LocaleNumber::hasDigitMarks() const noexcept {
    return groupSize_ > 0 || hasLeadingZero_ || maximumFractionDigits_ > 0;
}

// All affixes of amounts contain the currency sign, except those of the fallback pattern.
bool LocaleNumber::isMonetary() const noexcept {
    return isKnown_ && type_ == NumberFormat::Currency &&
           (!affixes_.areEmpty() || !negativeAffixes().areEmpty());
}

Affixes LocaleNumber::negativeAffixes() const noexcept {
    if (!isKnown_) {
        return type_ == NumberFormat::Currency ? Affixes{"($", ")"} : Affixes();
    }
    if (type_ == NumberFormat::Currency) {
        return affixesAt(negativeCurrencies, countIn(LocaleNumberValue(platform::LOCALE_INEGCURR)));
    }
    const char form = LocaleNumberValue(platform::LOCALE_INEGNUMBER).first();
    const std::size_t number = static_cast<std::size_t>(form) - '0';
    return type_ == NumberFormat::Percent ? affixesAt(negativePercents, number)
                                          : affixesAt(negativeNumbers, number);
}

std::string LocaleNumber::pattern() const {
    std::string text(affixes_.prefix);
    if (groupSize_ > 0) {
        text.append("#,").append(groupSize_ - (hasLeadingZero_ ? 1 : 0), '#');
    }
    if (hasLeadingZero_) {
        text += '0';
    }
    if (maximumFractionDigits_ > 0) {
        text += '.';
        text.append(minimumFractionDigits_, '0');
        text.append(maximumFractionDigits_ - minimumFractionDigits_, '#');
    }
    text += affixes_.suffix;
    const Affixes negative = negativeAffixes();
    if (!negative.areEmpty()) {
        text += ';';
        text += negative.prefix;
        text += '#';
        text += negative.suffix;
    }
    return text;
}

void LocaleNumber::appendArgument(const boost::any& argument, TextOutput& out) const {
    writeNumber(readNumber(argument), Form(*this), out);
}

} // namespace zem::msglib
