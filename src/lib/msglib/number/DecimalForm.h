#pragma once

#include "base/TextOutput.h"
#include "msglib/DecimalFormat.h"
#include "number/DigitWriter.h"
#include "number/NumberWriter.h"

#include <boost/any.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zem::msglib {

/// The form (see NumberWriter.h) that the fields of a `DecimalFormat` describe. It borrows the
/// `DecimalFormat`.
class DecimalForm {
public:
    explicit DecimalForm(const DecimalFormat& format) noexcept : format_(format) {}

    /// Appends a number as `DecimalFormat::format` does.
    void append(double value, TextOutput& out) const;

    /// Appends an argument of any numeric kind.
    ///
    /// @throws what `readNumber` throws
    void appendArgument(const boost::any& argument, TextOutput& out) const;

    /// Appends a whole number without multiplier and rounding. The pattern must not have an
    /// exponent.
    void appendWhole(std::int64_t value, TextOutput& out) const;

    // The operations of a form.

    Affixes positiveAffixes() const noexcept {
        return {format_.positivePrefix_, format_.positiveSuffix_};
    }
    Affixes negativeAffixes() const noexcept {
        return {format_.negativePrefix_, format_.negativeSuffix_};
    }
    static bool isEmpty(std::string_view affix) noexcept { return affix.empty(); }
    static void appendAffix(std::string_view affix, TextOutput& out) {
        if (!affix.empty()) {
            out.append(affix);
        }
    }
    void appendMinusSign(TextOutput& out) const { out.append(format_.symbols_.minusSign_); }

    int multiplier() const noexcept { return format_.multiplier_; }
    double rounding() const noexcept { return roundingOf(format_.maximumFractionDigits_); }
    ScaledNumber scale(double x) const {
        return format_.useExponentialNotation_ ? scaleToExponent(x) : ScaledNumber{x, 0};
    }
    void appendExponent(std::int64_t exponent, TextOutput& out) const {
        if (format_.useExponentialNotation_) {
            appendExponentDigits(exponent, out);
        }
    }

    DigitLayout digitLayout() const noexcept {
        const DecimalFormatSymbols& symbols = format_.symbols_;
        const bool grouped = format_.groupingUsed_ && format_.groupingSize_ > 0;
        return {countOf(format_.maximumIntegerDigits_),
                countOf(format_.minimumIntegerDigits_),
                countOf(format_.maximumFractionDigits_),
                countOf(format_.minimumFractionDigits_),
                grouped ? countOf(format_.groupingSize_) : 0,
                format_.monetary_ ? symbols.monetaryGroupingSeparator_ : symbols.groupingSeparator_,
                format_.monetary_ ? symbols.monetaryDecimalSeparator_ : symbols.decimalSeparator_,
                symbols.zeroDigit_};
    }
    std::string_view naN() const noexcept { return format_.symbols_.naN_; }
    std::string_view infinity() const noexcept { return format_.symbols_.infinity_; }

private:
    static std::size_t countOf(int digits) noexcept {
        return static_cast<std::size_t>(std::max(digits, 0));
    }
    ScaledNumber scaleToExponent(double x) const;
    void appendExponentDigits(std::int64_t exponent, TextOutput& out) const;

    const DecimalFormat& format_;
};

} // namespace zem::msglib
