#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zem::msglib {

/// The parts of a number pattern that the platform's locale values give.
struct LocaleNumberPattern {
    unsigned int groupSize;      ///< 0: no groups
    bool leadingZero;            ///< one integer digit is always written
    unsigned int fractionDigits; ///< always written
    std::string_view negative;   ///< the negative subpattern with its separator, or empty

    /// Tells whether the platform knows the locale; without it there are no values to ask for.
    static bool isAvailable() noexcept;

    /// Returns the parts for plain numbers.
    static LocaleNumberPattern number() noexcept;

    /// Returns the parts for whole numbers.
    static LocaleNumberPattern integer() noexcept;

    /// Returns the parts for percentages.
    static LocaleNumberPattern percent() noexcept;

    /// Returns the parts for amounts, whose place of the currency sign is asked for apart.
    static LocaleNumberPattern currency() noexcept;

    /// Returns integer and fraction part as a pattern text: "#,##0.00".
    std::string digits() const;
};

/// Puts the currency sign where the locale has it.
void addCurrencySign(std::string& digits);

} // namespace zem::msglib
