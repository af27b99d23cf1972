#include "number/DecimalForm.h"

#include "base/Compiler.h"
#include "number/NumberArgument.h"
#include "number/PowersOfTen.h"

#include <limits>

namespace zem::msglib {

namespace {

double dividedByPower(double x, std::int64_t exponent) {
    const double power = powerOfTen(exponent);
    if (power > 0.0) {
        return x / power;
    }
    // No double holds this power, so the smallest numbers get there in two steps.
    constexpr int step = 300;
    return x * 1e300 / powerOfTen(exponent + step);
}

} // namespace

void DecimalForm::append(double value, TextOutput& out) const {
    writeNumber(value, *this, out);
}

void DecimalForm::appendArgument(const boost::any& argument, TextOutput& out) const {
    writeNumber(readNumber(argument), *this, out);
}

void DecimalForm::appendWhole(std::int64_t value, TextOutput& out) const {
    const bool negative = value < 0;
    writeSigned(negative, *this, out, [&] {
        appendDigits(static_cast<std::uint64_t>(negative ? -value : value), digitLayout(), out);
    });
}

// Divides by the power of ten that brings as many digits before the point as the pattern asks for;
// zero and infinity stay as they are. Like the other half of exponents it isn't inline, so that
// numbers without an exponent need not make room for it.
MSGLIB_NOINLINE ScaledNumber DecimalForm::scaleToExponent(double x) const {
    if (x == 0.0 || x == std::numeric_limits<double>::infinity()) {
        return {x, 0};
    }
    const int digits = format_.minimumIntegerDigits_;
    const std::int64_t exponent = decimalExponent(x) + (digits > 0 ? std::int64_t{1} - digits : 0);
    return {dividedByPower(x, exponent), exponent};
}

MSGLIB_NOINLINE void DecimalForm::appendExponentDigits(std::int64_t exponent,
                                                       TextOutput& out) const {
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

} // namespace zem::msglib
