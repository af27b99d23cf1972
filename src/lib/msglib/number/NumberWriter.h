#pragma once

#include "base/TextOutput.h"
#include "number/Affixes.h"
#include "number/DigitWriter.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <string_view>

/// Puts the text of a number together: sign, prefix, digits, exponent and suffix.
///
/// How a number looks comes from a *form*, which answers these questions:
///
///     positiveAffixes(), negativeAffixes()     an empty negative affix falls back to its positive
///                                              twin
///     isEmpty(affix), appendAffix(affix, out)  what an affix comes to
///     appendMinusSign(out)                     the sign of numbers without negative affixes
///     multiplier(), rounding()                 what the magnitude is multiplied with, and what is
///                                              added to it after that
///     scale(x), appendExponent(exponent, out)  exponential notation; without it, neither changes
///                                              anything
///     digitLayout(), infinity(), naN()         the digits, and the texts of numbers without digits
///
/// A form is passed by reference: copying its buffers would cost more than all the rest.
namespace zem::msglib {

/// A number divided by 10 to the power `exponent`.
struct ScaledNumber {
    double number;
    std::int64_t exponent;
};

/// Appends sign and affixes, and what `appendDigits()` appends between them.
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

/// Appends a number without its sign.
template <class Form>
void writeMagnitude(double magnitude, const Form& form, TextOutput& out) {
    const ScaledNumber scaled = form.scale(magnitude * form.multiplier());
    // The only rounding there is. All further digits are cut off.
    const double x = scaled.number + form.rounding();
    if (x == std::numeric_limits<double>::infinity()) {
        out.append(form.infinity());
        return;
    }
    appendDigits(x, form.digitLayout(), out);
    form.appendExponent(scaled.exponent, out);
}

/// Appends any number.
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
