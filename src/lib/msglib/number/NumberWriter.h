#pragma once

#include "base/TextOutput.h"
#include "number/Affixes.h"
#include "number/DigitWriter.h"

#include <cmath>
#include <limits>
#include <string_view>

/// Puts the text of a number together: sign, prefix, digits, exponent and suffix.
///
/// How a number looks comes from a *form*, which answers these questions:
///
///     positiveAffixes(), negativeAffixes()  the affixes; an empty negative one falls back to its
///                                           positive twin
///     isEmpty(affix), append(affix, out)    what an affix comes to
///     appendMinusSign(out)                  the sign of numbers without negative affixes
///     multiplier(), rounding()              what the magnitude is multiplied with, and what is
///                                           added to it then
///     scale(x), appendExponent(exponent)    exponential notation; both do nothing without it
///     digitLayout(), naN(), infinity()      the digits, and the texts for numbers without any
///
/// A form is passed by reference: copies of its buffers cost more than all the rest.
namespace zem::msglib {

/// Appends what comes before the digits, and returns the suffix for `form.append` after them.
template <class Form>
std::string_view appendPrefix(bool negative, const Form& form, TextOutput& out) {
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
    form.append(affixes.prefix, out);
    return affixes.suffix;
}

/// Appends a number without its sign.
template <class Form>
void appendMagnitude(double magnitude, const Form& form, TextOutput& out) {
    double x = magnitude * form.multiplier();
    const auto exponent = form.scale(x);
    // The only rounding there is. All further digits are cut off.
    x += form.rounding();
    if (x == std::numeric_limits<double>::infinity()) {
        out.append(form.infinity());
        return;
    }
    appendDigits(x, form.digitLayout(), out);
    form.appendExponent(exponent, out);
}

/// Appends any number.
template <class Form>
void appendNumber(double value, const Form& form, TextOutput& out) {
    if (std::isnan(value)) {
        out.append(form.naN());
        return;
    }
    const bool negative = value < 0.0;
    const std::string_view suffix = appendPrefix(negative, form, out);
    appendMagnitude(negative ? -value : value, form, out);
    form.append(suffix, out);
}

} // namespace zem::msglib
