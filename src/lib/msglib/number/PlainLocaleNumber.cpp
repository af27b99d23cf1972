#include "number/PlainLocaleNumber.h"

#include "base/LocaleValue.h"
#include "base/TextOutput.h"
#include "number/DigitWriter.h"
#include "number/LocaleNumberPattern.h"

#include <cmath>
#include <limits>

namespace zem::msglib {

namespace {

// The symbols between and behind which digits stand, asked for when they are needed.
struct Symbols {
    explicit Symbols(bool monetary) noexcept
        : zero(platform::LOCALE_SNATIVEDIGITS),
          grouping(monetary ? platform::LOCALE_SMONTHOUSANDSEP : platform::LOCALE_STHOUSAND),
          decimal(monetary ? platform::LOCALE_SMONDECIMALSEP : platform::LOCALE_SDECIMAL) {}

    bool areFound() const noexcept { return zero.found() && grouping.found() && decimal.found(); }

    LocaleNumberValue zero;
    LocaleNumberValue grouping;
    LocaleNumberValue decimal;
};

void appendDigits(double x, const LocaleNumberPattern& pattern, const Symbols& symbols,
                  TextOutput& out) {
    constexpr std::size_t mostIntegerDigits = 309;
    const DigitLayout layout{mostIntegerDigits,      pattern.leadingZero ? 1U : 0U,
                             pattern.fractionDigits, pattern.fractionDigits,
                             pattern.groupSize,      symbols.grouping.text(),
                             symbols.decimal.text(), symbols.zero.first()};
    appendDigits(x, layout, out);
}

bool appendAmount(double x, const LocaleNumberPattern& pattern, const Symbols& symbols,
                  TextOutput& out) {
    const CurrencyPlace place = localeCurrencyPlace();
    const LocaleNumberValue sign(platform::LOCALE_SCURRENCY);
    if (place == CurrencyPlace::Nowhere || !sign.found()) {
        return false;
    }
    if (place == CurrencyPlace::Front || place == CurrencyPlace::FrontAndBlank) {
        out.append(sign.text());
    }
    if (place == CurrencyPlace::FrontAndBlank) {
        out.append(' ');
    }
    appendDigits(x, pattern, symbols, out);
    if (place == CurrencyPlace::BackAndBlank) {
        out.append(' ');
    }
    if (place == CurrencyPlace::Back || place == CurrencyPlace::BackAndBlank) {
        out.append(sign.text());
    }
    return true;
}

// Returns the form around the digits, such as ";-#"; nothing for amounts, whose sign and currency
// mark only a formatter puts together.
std::string_view formOf(bool negative, NumberFormat::FormatType type) noexcept {
    if (type == NumberFormat::Currency) {
        return {};
    }
    if (negative) {
        return localeNegativePattern(type);
    }
    return type == NumberFormat::Percent ? ";#%" : ";#";
}

} // namespace

bool appendPlainLocaleNumber(double value, NumberFormat::FormatType type, TextOutput& out) {
    const bool negative = value < 0.0;
    const std::string_view form = formOf(negative, type);
    if (std::isnan(value) || (negative && form.empty()) || !LocaleNumberPattern::isAvailable()) {
        return false;
    }
    const LocaleNumberPattern pattern = LocaleNumberPattern::of(type);
    const double magnitude = negative ? -value : value;
    const double scaled = type == NumberFormat::Percent ? magnitude * 100 : magnitude;
    const double x = scaled + roundingOf(static_cast<int>(pattern.fractionDigits));
    const Symbols symbols(type == NumberFormat::Currency);
    if (x == std::numeric_limits<double>::infinity() || !symbols.areFound()) {
        return false;
    }
    if (type == NumberFormat::Currency) {
        return appendAmount(x, pattern, symbols, out);
    }
    const std::size_t digits = form.find('#');
    out.append(form.substr(1, digits - 1));
    appendDigits(x, pattern, symbols, out);
    out.append(form.substr(digits + 1));
    return true;
}

} // namespace zem::msglib
