#include "number/PlainLocaleNumber.h"

#include "base/LocaleValue.h"
#include "number/DigitWriter.h"
#include "number/LocaleNumberPattern.h"

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
                  std::string& out) {
    constexpr std::size_t mostIntegerDigits = 309;
    const DigitLayout layout{mostIntegerDigits,      pattern.leadingZero ? 1U : 0U,
                             pattern.fractionDigits, pattern.fractionDigits,
                             pattern.groupSize,      symbols.grouping.text(),
                             symbols.decimal.text(), symbols.zero.first()};
    appendDigits(x, layout, out);
}

bool appendAmount(double x, const LocaleNumberPattern& pattern, const Symbols& symbols,
                  std::string& out) {
    const CurrencyPlace place = localeCurrencyPlace();
    const LocaleNumberValue sign(platform::LOCALE_SCURRENCY);
    if (place == CurrencyPlace::Nowhere || !sign.found()) {
        return false;
    }
    if (place == CurrencyPlace::Front || place == CurrencyPlace::FrontAndBlank) {
        out += sign.text();
    }
    if (place == CurrencyPlace::FrontAndBlank) {
        out.push_back(' ');
    }
    appendDigits(x, pattern, symbols, out);
    if (place == CurrencyPlace::BackAndBlank) {
        out.push_back(' ');
    }
    if (place == CurrencyPlace::Back || place == CurrencyPlace::BackAndBlank) {
        out += sign.text();
    }
    return true;
}

} // namespace

bool appendPlainLocaleNumber(double value, NumberFormat::FormatType type, std::string& out) {
    if (!(value >= 0.0) || !LocaleNumberPattern::isAvailable()) {
        return false;
    }
    const LocaleNumberPattern pattern = LocaleNumberPattern::of(type);
    const double scaled = type == NumberFormat::Percent ? value * 100 : value;
    const double x = scaled + roundingOf(static_cast<int>(pattern.fractionDigits));
    const Symbols symbols(type == NumberFormat::Currency);
    if (x == std::numeric_limits<double>::infinity() || !symbols.areFound()) {
        return false;
    }
    if (type == NumberFormat::Currency) {
        return appendAmount(x, pattern, symbols, out);
    }
    appendDigits(x, pattern, symbols, out);
    if (type == NumberFormat::Percent) {
        out.push_back('%');
    }
    return true;
}

} // namespace zem::msglib
