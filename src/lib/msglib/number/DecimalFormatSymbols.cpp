#include "msglib/DecimalFormatSymbols.h"

#include "base/LocaleValue.h"

namespace zem::msglib {

namespace {

// Most symbols equal their default, and comparing costs less than assigning.
void query(std::uint32_t lctype, std::string& symbol) {
    if (const LocaleNumberValue value(lctype); value.found() && value.text() != symbol) {
        symbol = value.text();
    }
}

} // namespace

DecimalFormatSymbols::DecimalFormatSymbols(const std::locale&) {
    query(platform::LOCALE_SCURRENCY, currencySymbol_);
    query(platform::LOCALE_SINTLSYMBOL, internationalCurrencySymbol_);
    if (const LocaleNumberValue digits(platform::LOCALE_SNATIVEDIGITS); digits.found()) {
        zeroDigit_ = digits.first();
    }
    query(platform::LOCALE_STHOUSAND, groupingSeparator_);
    query(platform::LOCALE_SMONTHOUSANDSEP, monetaryGroupingSeparator_);
    query(platform::LOCALE_SDECIMAL, decimalSeparator_);
    query(platform::LOCALE_SMONDECIMALSEP, monetaryDecimalSeparator_);
    query(platform::LOCALE_SNEGATIVESIGN, minusSign_);
}

DecimalFormatSymbols::DecimalFormatSymbols(const DecimalFormatSymbols& other) = default;

DecimalFormatSymbols::DecimalFormatSymbols(DecimalFormatSymbols&& other) noexcept = default;

DecimalFormatSymbols& DecimalFormatSymbols::operator=(const DecimalFormatSymbols& other) = default;

DecimalFormatSymbols&
DecimalFormatSymbols::operator=(DecimalFormatSymbols&& other) noexcept = default;

DecimalFormatSymbols::~DecimalFormatSymbols() = default;

} // namespace zem::msglib
