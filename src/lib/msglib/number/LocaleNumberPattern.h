#pragma once

#include "msglib/NumberFormat.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace zem::msglib {

/// The parts of a number pattern that the platform's locale values give.
struct LocaleNumberPattern {
    std::size_t groupSize;      ///< 0: no groups
    bool leadingZero;           ///< one integer digit is always written
    std::size_t fractionDigits; ///< always written

    /// Tells whether the platform knows the locale; without it there are no values to ask for.
    static bool isAvailable() noexcept;

    /// Returns the parts for numbers of `type`.
    static LocaleNumberPattern of(NumberFormat::FormatType type) noexcept;

    /// Returns the pattern of the digits: "#,##0.00".
    std::string text() const;
};

/// Returns the negative subpattern for numbers of `type`, with its separator; it may be empty.
std::string_view localeNegativePattern(NumberFormat::FormatType type) noexcept;

/// Where the locale puts the currency sign of amounts that aren't negative.
enum class CurrencyPlace : std::uint8_t { Nowhere, Front, Back, FrontAndBlank, BackAndBlank };

/// Returns the locale's place of the currency sign.
CurrencyPlace localeCurrencyPlace() noexcept;

} // namespace zem::msglib
