#pragma once

#include "base/TextOutput.h"
#include "number/Affixes.h"
#include "number/DigitWriter.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <string_view>

/// Writes the text of a number: sign, prefix, digits, exponent and suffix.
///
/// The appearance of a number comes from a *form*, a class with these operations:
///
///     positiveAffixes(), negativeAffixes()     an empty negative affix is replaced by the positive
///                                              one
///     isEmpty(affix), appendAffix(affix, out)  for the text of an affix, with symbols filled in
///     appendMinusSign(out)                     the sign of numbers without negative affixes
///     multiplier(), rounding()                 the magnitude is multiplied by the first; then the
///                                              second is added
///     scale(x), appendExponent(exponent, out)  exponential notation; both do nothing without it
///     digitLayout(), infinity(), naN()         the digits, and the texts of values without digits
///
/// Forms are passed by reference: copying their buffers would take longer than everything else.
namespace zem::msglib {

/// A number divided by 10 to the power `exponent`.
struct ScaledNumber {
    double number;
    std::int64_t exponent;
};

/// Appends sign, prefix, what `appendDigits()` appends, and suffix.
template <class Form, class AppendDigits>
void writeSigned(bool negative, const Form& form, TextOutput& out, AppendDigits appendDigits) {
    Affixes affixes = form.positiveAffixes();
    if (negative) {
        const Affixes own = form.negativeAffixes();
        const bool hasPrefix = !form.isEmpty(own.prefix);
        const bool hasSuffix = !form.isEmpty(own.suffix);
        if (!hasPrefix && !hasSuffix) {
            form.appendMinusSign(out);
        }
        affixes = {hasPrefix ? own.prefix : affixes.prefix,
                   hasSuffix ? own.suffix : affixes.suffix};
    }
    form.appendAffix(affixes.prefix, out);
    appendDigits();
    form.appendAffix(affixes.suffix, out);
}

/// Appends a magnitude, which is not negative and not NaN.
template <class Form>
void writeMagnitude(double magnitude, const Form& form, TextOutput& out) {
    const ScaledNumber scaled = form.scale(magnitude * form.multiplier());
    // This is the only rounding. All further digits are cut off.
    const double x = scaled.number + form.rounding();
    if (x == std::numeric_limits<double>::infinity()) {
        out.append(form.infinity());
        return;
    }
    appendDigits(x, form.digitLayout(), out);
    form.appendExponent(scaled.exponent, out);
}

/// Appends any number, including NaN and the infinities.
template <class Form>
void writeNumber(double value, const Form& form, TextOutput& out) {
    if (std::isnan(value)) {
        out.append(form.naN());
        return;
    }
    const bool negative = value < 0.0;
    writeSigned(negative, form, out, [&] { writeMagnitude(negative ? -value : value, form, out); });
}

} // namespace zem::msglib
