#pragma once

#include "base/Binary64.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zem::msglib {

class TextOutput;

/// How the digits of a number are written, without sign and affixes.
struct DigitLayout {
    std::size_t maximumIntegerDigits;
    std::size_t minimumIntegerDigits;
    std::size_t maximumFractionDigits;
    std::size_t minimumFractionDigits;
    std::size_t groupSize; ///< 0 without grouping
    std::string_view groupingSeparator;
    std::string_view decimalSeparator;
    char zeroDigit;
};

/// Returns the rounding term, half a unit of the last fraction digit: the double nearest to 10 to
/// the power -maximumFractionDigits - 1, times 5.
double roundingOf(int maximumFractionDigits) noexcept;

/// Appends the digits of `x`, which is finite and not negative. Digits beyond the maximum are cut
/// off, and trailing zeros of the fraction beyond the minimum are left out.
void appendDigits(double x, const DigitLayout& layout, TextOutput& out);

/// Appends the digits of a whole number. Its fraction consists of the minimum number of zeros.
void appendDigits(std::uint64_t whole, const DigitLayout& layout, TextOutput& out);

} // namespace zem::msglib
