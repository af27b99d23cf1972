#pragma once

#include "base/Binary64.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zem::msglib {

class TextOutput;

/// How the digits of a number stand, without sign and affixes.
struct DigitLayout {
    std::size_t maximumIntegerDigits;
    std::size_t minimumIntegerDigits;
    std::size_t maximumFractionDigits;
    std::size_t minimumFractionDigits;
    std::size_t groupSize; ///< 0: no groups
    std::string_view groupingSeparator;
    std::string_view decimalSeparator;
    char zeroDigit;
};

/// Returns what is added to a number before its digits are cut off: half a unit of the last digit.
///
/// That is 10 to the power -maximumFractionDigits - 1, as the nearest double, times 5.
double roundingOf(int maximumFractionDigits) noexcept;

/// Appends the digits of `x`, which is finite and not negative. Nothing is rounded, and trailing
/// zeros of the fraction beyond the minimum are left out.
void appendDigits(double x, const DigitLayout& layout, TextOutput& out);

/// Appends the digits of a whole number, with no fraction but the zeros of its minimum.
void appendDigits(std::uint64_t whole, const DigitLayout& layout, TextOutput& out);

} // namespace zem::msglib
