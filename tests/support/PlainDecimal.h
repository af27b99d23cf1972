#pragma once

#include "support/PlainPowers.h"
#include "support/RoundedArithmetic.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

namespace zem::msglib {

/// A decimal pattern in fields, with the default symbols, and a second implementation of the text
/// of a number, to compare the library with.
///
/// Every binary64 operation is computed in whole numbers of any size and rounded once, and the text
/// is put together from finished parts. So it shares neither the arithmetic nor the steps of the
/// library.
struct PlainDecimal {
    std::string prefix, suffix, negativePrefix, negativeSuffix;
    int multiplier;
    int groupingSize; ///< 0 without grouping
    int minimumIntegerDigits;
    int minimumFractionDigits;
    int maximumFractionDigits;
    int minimumExponentDigits; ///< negative without exponent

    /// Returns the text of `value`.
    ///
    /// @param steps  by how many doubles the quotient by a power of ten below all doubles differs
    ///               from the nearest one: the last bits of that quotient may vary
    std::string text(double value, int steps = 0) const;

    /// Returns whether `text` is the text of `value`, for any of the two next such quotients on
    /// both sides.
    bool isText(const std::string& text, double value) const;

private:
    std::string magnitudeText(double x, int steps) const;
    std::string wholeText(double whole) const;
    std::string fractionText(double fraction) const;
    std::string exponentText(int exponent) const;
};

/// Returns `digits` with leading zeros up to `minimum` digits.
inline std::string withLeadingZeros(const std::string& digits, int minimum) {
    const int missing = minimum - static_cast<int>(digits.size());
    return std::string(static_cast<std::size_t>(missing > 0 ? missing : 0), '0') + digits;
}

inline std::string PlainDecimal::text(double value, int steps) const {
    if (std::isnan(value)) {
        return "1.#NaN";
    }
    const std::string magnitude = magnitudeText(std::fabs(value), steps);
    if (!(value < 0.0)) {
        return prefix + magnitude + suffix;
    }
    const std::string sign = negativePrefix.empty() && negativeSuffix.empty() ? "-" : "";
    return (negativePrefix.empty() ? sign + prefix : negativePrefix) + magnitude +
           (negativeSuffix.empty() ? suffix : negativeSuffix);
}

inline bool PlainDecimal::isText(const std::string& text, double value) const {
    for (const int steps : {0, 1, -1, 2, -2}) {
        if (text == this->text(value, steps)) {
            return true;
        }
    }
    return false;
}

inline std::string PlainDecimal::magnitudeText(double x, int steps) const {
    x = std::isinf(x) ? x : roundedProduct(x, multiplier);
    if (std::isinf(x)) {
        return "1.#INF";
    }
    int exponent = 0;
    if (minimumExponentDigits >= 0 && x > 0.0) {
        exponent = plainDecimalExponent(x);
        exponent += minimumIntegerDigits > 0 ? 1 - minimumIntegerDigits : 0;
        const double power = plainPowerOfTen(exponent);
        if (power > 0.0) {
            x = roundedQuotient(x, power);
        } else {
            x = roundedQuotientByPowerOfTen(x, exponent);
            for (int step = 0; step < std::abs(steps); ++step) {
                x = std::nextafter(x, steps > 0 ? HUGE_VAL : 0.0);
            }
        }
    }
    x = roundedSum(x, roundedProduct(plainPowerOfTen(-maximumFractionDigits - 1), 5.0));
    if (std::isinf(x)) {
        return "1.#INF";
    }
    double whole = 0.0;
    const double fraction = std::modf(x, &whole);
    return wholeText(whole) + fractionText(fraction) + exponentText(exponent);
}

// Above 2 to the power 53 the quotients are rounded, by definition.
inline std::string PlainDecimal::wholeText(double whole) const {
    std::string digits;
    for (; whole >= 0x1p53; whole = std::floor(roundedQuotient(whole, 10.0))) {
        digits.insert(0, std::to_string(static_cast<int>(std::fmod(whole, 10.0))));
    }
    if (whole > 0.0) {
        digits.insert(0, std::to_string(static_cast<long long>(whole)));
    }
    digits = withLeadingZeros(digits, minimumIntegerDigits);
    if (groupingSize > 0) {
        for (int at = static_cast<int>(digits.size()) - groupingSize; at > 0; at -= groupingSize) {
            digits.insert(static_cast<std::size_t>(at), ",");
        }
    }
    return digits;
}

inline std::string PlainDecimal::fractionText(double fraction) const {
    std::string digits;
    for (int count = 0; count < maximumFractionDigits; ++count) {
        double digit = 0.0;
        fraction = std::modf(roundedProduct(fraction, 10.0), &digit);
        digits += std::to_string(static_cast<int>(digit));
    }
    const std::size_t significant = digits.find_last_not_of('0') + 1;
    digits.resize(std::max(significant, static_cast<std::size_t>(minimumFractionDigits)));
    return digits.empty() ? digits : "." + digits;
}

inline std::string PlainDecimal::exponentText(int exponent) const {
    if (minimumExponentDigits < 0) {
        return "";
    }
    const std::string digits = exponent == 0 ? "" : std::to_string(std::abs(exponent));
    return (exponent < 0 ? "E-" : "E") + withLeadingZeros(digits, minimumExponentDigits);
}

} // namespace zem::msglib
