#pragma once

#include <string>

namespace zem::msglib {

/// A decimal pattern in fields, with the usual symbols, and a second reading of how a number is
/// written by it.
///
/// It goes one step after the other without a thought for speed, so that the library's own way can
/// be compared with it.
struct PlainDecimal {
    std::string prefix, suffix, negativePrefix, negativeSuffix;
    int multiplier;
    int groupingSize; ///< 0 for no grouping
    int minimumIntegerDigits;
    int minimumFractionDigits;
    int maximumFractionDigits;
    int minimumExponentDigits; ///< below 0 for no exponent

    /// Returns the text of `value`.
    std::string text(double value) const;

private:
    std::string magnitudeText(double x) const;
    std::string fractionText(double fraction) const;
};

} // namespace zem::msglib
