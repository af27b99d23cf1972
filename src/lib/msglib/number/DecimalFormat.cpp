#include "msglib/DecimalFormat.h"

#include "base/Argument.h"
#include "number/PowersOfTen.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace zem::msglib {

namespace {

// Below this a double holds every integer, and division by ten rounds to the right quotient, so
// that integers give the same digits as doubles.
constexpr double exactIntegers = 0x1p53;

// The largest finite double has 309 digits.
constexpr std::size_t mostIntegerDigits = 320;

// A fraction is a multiple of 2 to the power -1074. Each multiplication by ten takes one factor of
// two away, so nothing is left behind as many digits.
constexpr std::size_t mostFractionDigits = 1074;

char* writeUnitsFirst(std::uint64_t whole, char zero, char* end) {
    for (; whole > 0; whole /= 10) {
        *end++ = static_cast<char>(zero + static_cast<int>(whole % 10));
    }
    return end;
}

char* writeUnitsFirst(double whole, char zero, char* end) {
    for (; whole >= exactIntegers; whole = std::floor(whole / 10.0)) {
        *end++ = static_cast<char>(zero + static_cast<int>(std::fmod(whole, 10.0)));
    }
    return writeUnitsFirst(static_cast<std::uint64_t>(whole), zero, end);
}

std::size_t countOf(int digits) {
    return static_cast<std::size_t>(std::max(digits, 0));
}

std::string_view between(const char* begin, const char* end) {
    return {begin, static_cast<std::size_t>(end - begin)};
}

} // namespace

std::string& DecimalFormat::format(double value, std::string& out) const {
    if (std::isnan(value)) {
        return out += symbols_.naN_;
    }
    const bool negative = value < 0.0;
    appendPrefix(negative, out);
    appendMagnitude(negative ? -value : value, out);
    appendSuffix(negative, out);
    return out;
}

std::string& DecimalFormat::format(long value, std::string& out) const {
    const std::int64_t number = checkedLong(value);
    if (useExponentialNotation_) {
        return format(static_cast<double>(value), out);
    }
    const bool negative = number < 0;
    appendPrefix(negative, out);
    char digits[mostIntegerDigits];
    const auto magnitude = static_cast<std::uint64_t>(negative ? -number : number);
    appendInteger(between(digits, writeUnitsFirst(magnitude, symbols_.zeroDigit_, digits)), out);
    if (minimumFractionDigits_ > 0) {
        out += monetary_ ? symbols_.monetaryDecimalSeparator_ : symbols_.decimalSeparator_;
        out.append(countOf(minimumFractionDigits_), symbols_.zeroDigit_);
    }
    appendSuffix(negative, out);
    return out;
}

void DecimalFormat::appendPrefix(bool negative, std::string& out) const {
    if (negative && !negativePrefix_.empty()) {
        out += negativePrefix_;
        return;
    }
    if (negative && negativeSuffix_.empty()) {
        out += symbols_.minusSign_;
    }
    out += positivePrefix_;
}

void DecimalFormat::appendSuffix(bool negative, std::string& out) const {
    out += negative && !negativeSuffix_.empty() ? negativeSuffix_ : positiveSuffix_;
}

void DecimalFormat::appendMagnitude(double magnitude, std::string& out) const {
    double x = magnitude * multiplier_;
    const bool scaled = useExponentialNotation_ && x > 0.0 && std::isfinite(x);
    const long long exponent = scaled ? scaleToExponent(x) : 0;
    // The only rounding there is: half a unit of the last digit. All digits are cut, not rounded.
    x += powerOfTen(-static_cast<double>(maximumFractionDigits_) - 1.0) * 5.0;
    if (!std::isfinite(x)) {
        out += symbols_.infinity_;
        return;
    }
    const double whole = std::floor(x);
    char digits[mostIntegerDigits];
    appendInteger(between(digits, writeUnitsFirst(whole, symbols_.zeroDigit_, digits)), out);
    appendFraction(x - whole, out);
    if (useExponentialNotation_) {
        appendExponent(exponent, out);
    }
}

// Divides a positive x by the power of ten that brings as many digits as the pattern asks for in
// front of the point.
long long DecimalFormat::scaleToExponent(double& x) const {
    auto exponent = static_cast<long long>(std::floor(std::log(x) / std::log(10.0)));
    if (minimumIntegerDigits_ > 0) {
        exponent += 1 - static_cast<long long>(minimumIntegerDigits_);
    }
    const double power = powerOfTen(static_cast<double>(exponent));
    if (power > 0.0) {
        x /= power;
    } else {
        // No double holds this power, so the smallest numbers get there in two steps.
        constexpr int step = 300;
        x = x * 1e300 / powerOfTen(static_cast<double>(exponent + step));
    }
    return exponent;
}

// Fills from the units upward, with zeros up to the minimum and nothing beyond the maximum.
void DecimalFormat::appendInteger(std::string_view unitsFirst, std::string& out) const {
    const std::size_t count = std::min(countOf(maximumIntegerDigits_),
                                       std::max(unitsFirst.size(), countOf(minimumIntegerDigits_)));
    if (count == 0) {
        return;
    }
    const bool grouped = groupingUsed_ && groupingSize_ > 0;
    const std::size_t groupSize = grouped ? static_cast<std::size_t>(groupingSize_) : count;
    const std::string& separator =
        monetary_ ? symbols_.monetaryGroupingSeparator_ : symbols_.groupingSeparator_;
    out.append(count + (count - 1) / groupSize * separator.size(), symbols_.zeroDigit_);
    char* at = out.data() + out.size();
    std::size_t left = groupSize;
    for (const char digit : unitsFirst.substr(0, count)) {
        if (left == 0) {
            at = std::copy_backward(separator.begin(), separator.end(), at);
            left = groupSize;
        }
        *--at = digit;
        --left;
    }
    for (std::size_t padding = unitsFirst.size(); padding < count; ++padding) {
        if (left == 0) {
            at = std::copy_backward(separator.begin(), separator.end(), at);
            left = groupSize;
        }
        --at;
        --left;
    }
}

// Digits up to the last one that isn't zero, and on to the minimum. Without any there is no
// separator either.
void DecimalFormat::appendFraction(double fraction, std::string& out) const {
    const std::size_t most = countOf(maximumFractionDigits_);
    char digits[mostFractionDigits];
    std::size_t count = 0;
    std::size_t significant = 0;
    while (count < most && fraction != 0.0) {
        fraction *= 10.0;
        const int digit = static_cast<int>(fraction);
        fraction -= digit;
        digits[count++] = static_cast<char>(symbols_.zeroDigit_ + digit);
        if (digit != 0) {
            significant = count;
        }
    }
    const std::size_t least = std::min(countOf(minimumFractionDigits_), most);
    if (significant == 0 && least == 0) {
        return;
    }
    out += monetary_ ? symbols_.monetaryDecimalSeparator_ : symbols_.decimalSeparator_;
    out.append(digits, significant);
    if (least > significant) {
        out.append(least - significant, symbols_.zeroDigit_);
    }
}

void DecimalFormat::appendExponent(long long exponent, std::string& out) const {
    out += symbols_.exponential_;
    if (exponent < 0) {
        out += symbols_.minusSign_;
        exponent = -exponent;
    }
    char digits[mostIntegerDigits];
    const char* end =
        writeUnitsFirst(static_cast<std::uint64_t>(exponent), symbols_.zeroDigit_, digits);
    const std::string_view unitsFirst = between(digits, end);
    if (const std::size_t least = countOf(minimumExponentDigits_); least > unitsFirst.size()) {
        out.append(least - unitsFirst.size(), symbols_.zeroDigit_);
    }
    out.append(unitsFirst.rbegin(), unitsFirst.rend());
}

} // namespace zem::msglib
