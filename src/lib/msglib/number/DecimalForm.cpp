#include "number/DecimalForm.h"

#include "msglib/DecimalFormat.h"
#include "number/NumberWriter.h"
#include "number/PowersOfTen.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

namespace zem::msglib {

namespace {

std::size_t countOf(int digits) noexcept {
    return static_cast<std::size_t>(std::max(digits, 0));
}

long long exponentOf(double x) {
    return static_cast<long long>(std::floor(std::log(x) / std::log(10.0)));
}

// Divides by a power of ten.
double scaled(double x, long long exponent) {
    const double power = powerOfTen(static_cast<double>(exponent));
    if (power > 0.0) {
        return x / power;
    }
    // No double holds this power, so the smallest numbers get there in two steps.
    constexpr int step = 300;
    return x * 1e300 / powerOfTen(static_cast<double>(exponent + step));
}

} // namespace

void DecimalForm::appendDouble(double value, TextOutput& out) const {
    appendNumber(value, *this, out);
}

void DecimalForm::appendWhole(std::int64_t value, TextOutput& out) const {
    const bool negative = value < 0;
    const std::string_view suffix = appendPrefix(negative, *this, out);
    appendDigits(static_cast<std::uint64_t>(negative ? -value : value), digitLayout(), out);
    append(suffix, out);
}

Affixes DecimalForm::positiveAffixes() const noexcept {
    return {format_.positivePrefix_, format_.positiveSuffix_};
}

Affixes DecimalForm::negativeAffixes() const noexcept {
    return {format_.negativePrefix_, format_.negativeSuffix_};
}

// Most affixes are empty.
void DecimalForm::append(std::string_view affix, TextOutput& out) {
    if (!affix.empty()) {
        out.append(affix);
    }
}

void DecimalForm::appendMinusSign(TextOutput& out) const {
    out.append(format_.symbols_.minusSign_);
}

int DecimalForm::multiplier() const noexcept {
    return format_.multiplier_;
}

double DecimalForm::rounding() const noexcept {
    return roundingOf(format_.maximumFractionDigits_);
}

// Brings as many digits before the point as the pattern asks for.
long long DecimalForm::scale(double& x) const {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    if (!format_.useExponentialNotation_ || x == 0.0 || x == infinity) {
        return 0;
    }
    const int digits = format_.minimumIntegerDigits_;
    const long long exponent = exponentOf(x) + (digits > 0 ? 1LL - digits : 0);
    x = scaled(x, exponent);
    return exponent;
}

void DecimalForm::appendExponent(long long exponent, TextOutput& out) const {
    if (!format_.useExponentialNotation_) {
        return;
    }
    out.append(format_.symbols_.exponential_);
    if (exponent < 0) {
        appendMinusSign(out);
        exponent = -exponent;
    }
    DigitLayout layout{};
    layout.maximumIntegerDigits = std::numeric_limits<std::size_t>::max();
    layout.minimumIntegerDigits = countOf(format_.minimumExponentDigits_);
    layout.zeroDigit = format_.symbols_.zeroDigit_;
    appendDigits(static_cast<std::uint64_t>(exponent), layout, out);
}

DigitLayout DecimalForm::digitLayout() const noexcept {
    const DecimalFormatSymbols& symbols = format_.symbols_;
    const bool grouped = format_.groupingUsed_ && format_.groupingSize_ > 0;
    return {countOf(format_.maximumIntegerDigits_),
            countOf(format_.minimumIntegerDigits_),
            countOf(format_.maximumFractionDigits_),
            countOf(format_.minimumFractionDigits_),
            grouped ? static_cast<std::size_t>(format_.groupingSize_) : 0,
            format_.monetary_ ? symbols.monetaryGroupingSeparator_ : symbols.groupingSeparator_,
            format_.monetary_ ? symbols.monetaryDecimalSeparator_ : symbols.decimalSeparator_,
            symbols.zeroDigit_};
}

std::string_view DecimalForm::naN() const noexcept {
    return format_.symbols_.naN_;
}

std::string_view DecimalForm::infinity() const noexcept {
    return format_.symbols_.infinity_;
}

} // namespace zem::msglib
