#pragma once

#include "number/Affixes.h"
#include "number/DigitWriter.h"

#include <cstdint>
#include <string_view>

namespace zem::msglib {

class DecimalFormat;
class TextOutput;

/// The form of numbers that the fields of a `DecimalFormat` describe, which it borrows.
class DecimalForm {
public:
    explicit DecimalForm(const DecimalFormat& format) noexcept : format_(format) {}

    /// Appends `value` as `DecimalFormat::format` does.
    void appendDouble(double value, TextOutput& out) const;

    /// Appends a whole number of a pattern without exponent: no multiplier and no rounding.
    void appendWhole(std::int64_t value, TextOutput& out) const;

    // The answers for the writer of numbers.
    Affixes positiveAffixes() const noexcept;
    Affixes negativeAffixes() const noexcept;
    static bool isEmpty(std::string_view affix) noexcept { return affix.empty(); }
    static void append(std::string_view affix, TextOutput& out);
    void appendMinusSign(TextOutput& out) const;
    int multiplier() const noexcept;
    double rounding() const noexcept;
    long long scale(double& x) const;
    void appendExponent(long long exponent, TextOutput& out) const;
    DigitLayout digitLayout() const noexcept;
    std::string_view naN() const noexcept;
    std::string_view infinity() const noexcept;

private:
    const DecimalFormat& format_;
};

} // namespace zem::msglib
