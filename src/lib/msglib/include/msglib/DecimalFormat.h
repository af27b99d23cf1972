#pragma once

#include "msglib/DecimalFormatSymbols.h"
#include "msglib/NumberFormat.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace zem::msglib {

class TextOutput;
struct DigitLayout;

/// Writes numbers by a pattern such as "#,##0.00;(#,##0.00)".
///
///     pattern    = subpattern [ ";" subpattern ]          the second one is for negative numbers
///     subpattern = affix number affix
///     number     = integer [ "." fraction ] [ "E" exponent ]
///     integer    = marks "#" and then "0", with "," as group boundary; only the marks behind the
///     last "," count fraction   = marks "0" and then "#" exponent   = marks "#", which count for
///     nothing, and then "0" affix      = any text without ". , # 0 E ;"
///
/// A `0` is a digit that is always written, a `#` one that is written when it says something. In an
/// affix, "''" is one apostrophe and an apostrophe, a byte and an apostrophe are that byte without
/// a meaning of its own. The byte 0xA4 is the local currency symbol, twice in a row the
/// international one; either selects the monetary separators. A `%` in a suffix multiplies by 100;
/// in a prefix it ends the prefix. Of the negative subpattern only the affixes count. Each empty
/// one falls back to its positive twin, and if both are empty, the minus sign stands in front.
///
/// The symbols are the object's own copy. Assignment and `applyPattern` need the object alone;
/// `format` operations only read it.
class MSGLIB_API DecimalFormat : public NumberFormat {
public:
    /// Compiles `pattern`, with a copy of `symbols`.
    ///
    /// @throws std::runtime_error as `applyPattern` does
    DecimalFormat(const std::string& pattern, const DecimalFormatSymbols& symbols);

    /// The same with symbols that the caller gives away.
    DecimalFormat(const std::string& pattern, DecimalFormatSymbols&& symbols);

    /// Copies what is compiled, the digit limits and the symbols.
    DecimalFormat(const DecimalFormat& other);

    /// The same by assignment; to itself it changes nothing.
    DecimalFormat& operator=(const DecimalFormat& other);

    ~DecimalFormat() override;

    /// Compiles `pattern` over the present state. Only the symbols stay, even from the setters
    /// nothing does.
    ///
    /// A failure leaves the formatter as far as the compilation got.
    ///
    /// @throws std::runtime_error with one of these texts:
    ///         "digit mark (#) following zero-index", "zero mark following digit",
    ///         "digit mark (#) following zero in exponent", "multiplier already set",
    ///         "separator character expected", "end of pattern expected"
    void applyPattern(const std::string& pattern);

    using NumberFormat::format;

    /// Appends the text of a whole number: no multiplier, no rounding, and exactly as many zeros
    /// for a fraction as the fewest fraction digits say. A pattern with an exponent goes the way of
    /// a `double`.
    ///
    ///     "#,##0.###"  -1234567 -> "-1,234,567"      "#,##0%"  5 -> "5%"
    ///
    /// @throws std::out_of_range outside the range of 32 bits, where `long` is wider than that
    std::string& format(long value, std::string& out) const override;

    /// Appends the text of a number.
    ///
    /// Rounding adds half a unit of the last fraction digit to the magnitude, as a sum of two
    /// `double`: what is stored decides, so ties of whole numbers go away from zero, while a tie in
    /// the fraction may go either way. Integer digits are exact below 2 to the power
    /// 53; above that they are what repeated division of a `double` by ten gives. Integer digits
    /// beyond the maximum are dropped.
    ///
    /// @param value  any binary64; NaN and the infinities have texts of their own
    /// @throws nothing of its own
    ///
    ///     "0"     2.5    -> "3"        "0.00"     1.005 -> "1.00"      "#"  0.0 -> ""
    ///     "0.0%"  0.1234 -> "12.3%"    "0.##E0"   1234  -> "1.23E3"
    std::string& format(double value, std::string& out) const override;

private:
    friend class LocaleNumberFormat;
    friend class MessageRenderer;

    std::size_t parseAffix(const std::string& pattern, std::size_t pos, std::string& affix,
                           bool suffix);
    std::size_t parseStatic(const std::string& pattern, std::size_t pos, std::string& text,
                            bool suffix);
    std::size_t parsePattern(const std::string& pattern, std::size_t pos, bool negative);
    std::size_t parseInteger(const std::string& pattern, std::size_t pos, bool negative);
    std::size_t parseFraction(const std::string& pattern, std::size_t pos, bool negative);
    std::size_t parseExponent(const std::string& pattern, std::size_t pos, bool negative);
    void reset();

    DigitLayout digitLayout() const noexcept;
    void write(const boost::any& value, TextOutput& out) const;
    void write(double value, TextOutput& out) const;
    void appendPrefix(bool negative, TextOutput& out) const;
    void appendSuffix(bool negative, TextOutput& out) const;
    void appendMagnitude(double magnitude, TextOutput& out) const;
    long long scaleToExponent(double& x) const;
    void appendExponent(long long exponent, TextOutput& out) const;

    static const std::string_view patternChars_;

    DecimalFormatSymbols symbols_;
    std::string negativePrefix_;
    std::string negativeSuffix_;
    std::string positivePrefix_;
    std::string positiveSuffix_;
    int multiplier_ = 1;
    short groupingSize_ = 0;
    short minimumExponentDigits_ = 0;
    bool useExponentialNotation_ = false;
    bool monetary_ = false;
};

} // namespace zem::msglib
