#include "msglib/DecimalFormat.h"

#include "base/Argument.h"
#include "base/TextOutput.h"
#include "number/DigitWriter.h"
#include "number/NumberArgument.h"
#include "number/PowersOfTen.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace zem::msglib {

namespace {

std::size_t countOf(int digits) noexcept {
    return static_cast<std::size_t>(std::max(digits, 0));
}

} // namespace

std::string& DecimalFormat::format(double value, std::string& out) const {
    return TextOutput::to(out, [&](TextOutput& text) { write(value, text); });
}

std::string& DecimalFormat::format(long value, std::string& out) const {
    const std::int64_t number = checkedLong(value);
    if (useExponentialNotation_) {
        return format(static_cast<double>(value), out);
    }
    const bool negative = number < 0;
    const auto magnitude = static_cast<std::uint64_t>(negative ? -number : number);
    return TextOutput::to(out, [&](TextOutput& text) {
        appendPrefix(negative, text);
        appendDigits(magnitude, digitLayout(), text);
        appendSuffix(negative, text);
    });
}

void DecimalFormat::write(const boost::any& value, TextOutput& out) const {
    write(readNumber(value), out);
}

void DecimalFormat::write(double value, TextOutput& out) const {
    if (std::isnan(value)) {
        out.append(symbols_.naN_);
        return;
    }
    const bool negative = value < 0.0;
    appendPrefix(negative, out);
    appendMagnitude(negative ? -value : value, out);
    appendSuffix(negative, out);
}

DigitLayout DecimalFormat::digitLayout() const noexcept {
    const bool grouped = groupingUsed_ && groupingSize_ > 0;
    return {countOf(maximumIntegerDigits_),
            countOf(minimumIntegerDigits_),
            countOf(maximumFractionDigits_),
            countOf(minimumFractionDigits_),
            grouped ? static_cast<std::size_t>(groupingSize_) : 0,
            monetary_ ? symbols_.monetaryGroupingSeparator_ : symbols_.groupingSeparator_,
            monetary_ ? symbols_.monetaryDecimalSeparator_ : symbols_.decimalSeparator_,
            symbols_.zeroDigit_};
}

void DecimalFormat::appendPrefix(bool negative, TextOutput& out) const {
    if (negative && !negativePrefix_.empty()) {
        out.append(negativePrefix_);
        return;
    }
    if (negative && negativeSuffix_.empty()) {
        out.append(symbols_.minusSign_);
    }
    if (!positivePrefix_.empty()) {
        out.append(positivePrefix_);
    }
}

void DecimalFormat::appendSuffix(bool negative, TextOutput& out) const {
    const std::string& suffix =
        negative && !negativeSuffix_.empty() ? negativeSuffix_ : positiveSuffix_;
    if (!suffix.empty()) {
        out.append(suffix);
    }
}

void DecimalFormat::appendMagnitude(double magnitude, TextOutput& out) const {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    double x = magnitude * multiplier_;
    const bool scaled = useExponentialNotation_ && x > 0.0 && x < infinity;
    const long long exponent = scaled ? scaleToExponent(x) : 0;
    // The only rounding there is. All digits are cut off behind it.
    x += roundingOf(maximumFractionDigits_);
    if (x == infinity) {
        out.append(symbols_.infinity_);
        return;
    }
    appendDigits(x, digitLayout(), out);
    if (useExponentialNotation_) {
        appendExponent(exponent, out);
    }
}

// Divides a positive x by the power of ten that brings as many digits as the pattern asks for in
// front of the point.
long long DecimalFormat::scaleToExponent(double& x) const {
    std::int64_t exponent = decimalExponent(x);
    if (minimumIntegerDigits_ > 0) {
        exponent += 1 - std::int64_t{minimumIntegerDigits_};
    }
    const double power = powerOfTen(exponent);
    if (power > 0.0) {
        x /= power;
    } else {
        // No double holds this power, so the smallest numbers get there in two steps.
        constexpr int step = 300;
        x = x * 1e300 / powerOfTen(exponent + step);
    }
    return exponent;
}

void DecimalFormat::appendExponent(long long exponent, TextOutput& out) const {
    out.append(symbols_.exponential_);
    if (exponent < 0) {
        out.append(symbols_.minusSign_);
        exponent = -exponent;
    }
    DigitLayout layout{};
    layout.maximumIntegerDigits = std::numeric_limits<std::size_t>::max();
    layout.minimumIntegerDigits = countOf(minimumExponentDigits_);
    layout.zeroDigit = symbols_.zeroDigit_;
    appendDigits(static_cast<std::uint64_t>(exponent), layout, out);
}

} // namespace zem::msglib
