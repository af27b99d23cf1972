#pragma once

#include "msglib/NumberFormat.h"
#include "number/Affixes.h"

#include <boost/any.hpp>

#include <cstddef>
#include <string>

namespace zem::msglib {

class TextOutput;

/// Numbers of one type, as the platform's locale values describe them.
///
/// It gives the pattern for the formatter that a factory makes, and the text of a number at once,
/// which is the text that such a formatter writes.
class LocaleNumber {
public:
    /// Asks the platform for the digits and for the affixes of numbers that aren't negative. The
    /// other operations ask for what else they need.
    explicit LocaleNumber(NumberFormat::FormatType type) noexcept;

    /// Returns plain numbers without a fraction: the pattern of `NumberFormat::Number`, followed by
    /// `setMaximumFractionDigits(0)`.
    static LocaleNumber rounded() noexcept;

    /// Returns whether the platform knows the locale. If it doesn't, this object describes the
    /// numbers of the factories' fallback patterns.
    bool isKnown() const noexcept { return isKnown_; }

    /// Returns the pattern for `DecimalFormat`: "#,##0.00;-#".
    std::string pattern() const;

    /// Appends an argument of any numeric kind as the factory's formatter would.
    ///
    /// @throws what `readNumber` throws
    void appendArgument(const boost::any& argument, TextOutput& out) const;

private:
    class Form;

    void readValues() noexcept;
    void readCurrencyMark() noexcept;
    void fallBack() noexcept;
    bool hasDigitMarks() const noexcept;
    bool isMonetary() const noexcept;
    Affixes negativeAffixes() const noexcept;

    NumberFormat::FormatType type_;
    bool isKnown_;
    bool hasLeadingZero_ = true;
    std::size_t groupSize_ = 3; ///< 0: no groups
    std::size_t minimumFractionDigits_ = 0;
    std::size_t maximumFractionDigits_ = 0;
    Affixes affixes_; ///< with 0xA4 for the currency symbol
};

} // namespace zem::msglib
