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
/// It provides the pattern for a factory's formatter, and renders numbers directly, with the same
/// text as that formatter.
class LocaleNumber {
public:
    /// Queries the digit counts and the positive affixes. The other operations query the remaining
    /// values that they use.
    explicit LocaleNumber(NumberFormat::FormatType type) noexcept;

    /// Returns the object for plain numbers without a fraction: `NumberFormat::Number` after
    /// `setMaximumFractionDigits(0)`.
    static LocaleNumber rounded() noexcept;

    /// Returns whether the platform has the locale. If not, this object describes the factories'
    /// fallback patterns.
    bool isKnown() const noexcept { return isKnown_; }

    /// Returns the pattern for `DecimalFormat`, such as "#,##0.00;-#".
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
    std::size_t groupSize_ = 3; ///< 0 without grouping
    std::size_t minimumFractionDigits_ = 0;
    std::size_t maximumFractionDigits_ = 0;
    Affixes affixes_; ///< with 0xA4 for the currency symbol
};

} // namespace zem::msglib
