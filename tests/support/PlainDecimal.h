#pragma once

#include "support/PlainPowers.h"

#include <algorithm>
#include <cmath>
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

// Writes a whole number digit by digit, each in front of the one before it.
inline std::string wholeText(double whole, int minimumDigits, int groupingSize) {
    std::string text;
    for (int i = 0; whole > 0.0 || i < minimumDigits; ++i) {
        const int digit = static_cast<int>(std::fmod(whole, 10.0));
        whole = std::floor(whole / 10.0);
        if (groupingSize > 0 && i > 0 && i % groupingSize == 0) {
            text.insert(0, ",");
        }
        text.insert(text.begin(), static_cast<char>('0' + digit));
    }
    return text;
}

inline std::string PlainDecimal::text(double value) const {
    if (std::isnan(value)) {
        return "1.#NaN";
    }
    const std::string magnitude = magnitudeText(std::fabs(value) * multiplier);
    if (!(value < 0.0)) {
        return prefix + magnitude + suffix;
    }
    const std::string sign = negativePrefix.empty() && negativeSuffix.empty() ? "-" : "";
    return (negativePrefix.empty() ? sign + prefix : negativePrefix) + magnitude +
           (negativeSuffix.empty() ? suffix : negativeSuffix);
}

inline std::string PlainDecimal::magnitudeText(double x) const {
    if (std::isinf(x)) {
        return "1.#INF";
    }
    int exponent = 0;
    if (minimumExponentDigits >= 0 && x > 0.0) {
        exponent = plainDecimalExponent(x);
        exponent += minimumIntegerDigits > 0 ? 1 - minimumIntegerDigits : 0;
        const double power = plainPowerOfTen(exponent);
        x = power > 0.0 ? x / power : x * 1e300 / plainPowerOfTen(exponent + 300);
    }
    x += plainPowerOfTen(-maximumFractionDigits - 1) * 5.0;
    const double whole = std::floor(x);
    std::string text =
        wholeText(whole, minimumIntegerDigits, groupingSize) + fractionText(x - whole);
    if (minimumExponentDigits >= 0) {
        text += exponent < 0 ? "E-" : "E";
        text += wholeText(std::abs(exponent), minimumExponentDigits, 0);
    }
    return text;
}

inline std::string PlainDecimal::fractionText(double fraction) const {
    std::string text;
    int zeros = 0;
    for (int k = 0; k < maximumFractionDigits; ++k) {
        if (fraction == 0.0 && k >= minimumFractionDigits) {
            break;
        }
        fraction *= 10.0;
        const int digit = static_cast<int>(fraction);
        zeros = digit == 0 ? zeros + 1 : 0;
        text.push_back(static_cast<char>('0' + digit));
        fraction -= std::floor(fraction);
    }
    const int written = static_cast<int>(text.size());
    const int cut = std::min(written - minimumFractionDigits, zeros);
    text.resize(static_cast<std::size_t>(written - std::max(cut, 0)));
    return text.empty() ? text : "." + text;
}

} // namespace zem::msglib
