#pragma once

#include "msglib/DecimalFormatSymbols.h"
#include "msglib/NumberFormat.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace zem::msglib {

/// Formats numbers by a pattern such as "#,##0.00;(#,##0.00)".
///
///     pattern    = subpattern [ ";" subpattern ]
///     subpattern = affix number affix
///     number     = integer [ "." fraction ] [ "E" exponent ]
///     integer    = { "#" | "," } { "0" | "," }
///     fraction   = { "0" } { "#" }
///     exponent   = { "#" } { "0" }
///     affix      = any text without . , # 0 E ; and, in a prefix, %
///
/// - A "0" is a digit that is always written. A "#" is a digit that is left out if it is a leading
///   zero of the integer or a trailing zero of the fraction. A "#" of the exponent has no effect.
/// - A "," turns grouping on. The group size is the number of marks after the last ",".
/// - In an affix, "''" is one apostrophe. An apostrophe, any byte and an apostrophe are that byte
///   as plain text.
/// - The byte 0xA4 in an affix is the local currency symbol; two in a row are the international
///   one. Either selects the monetary separators.
/// - A "%" in a suffix multiplies by 100.
/// - The second subpattern is for negative numbers, and only its affixes count. An empty negative
///   affix is replaced by the positive one. If both are empty, the text begins with the minus sign.
///
/// The object has its own copy of the symbols.
///
/// Compiling takes time linear in the length of the pattern, rendering in the length of the text.
/// The text has at most 309 integer digits, or the minimum if that is larger, and at most as many
/// fraction digits as the pattern allows. Separators, exponent and affixes come on top.
///
/// Threads: const operations on one object may run concurrently; every other operation needs
/// exclusive access to it.
class MSGLIB_API DecimalFormat : public NumberFormat {
public:
    /// Compiles `pattern`, with a copy of `symbols`.
    ///
    /// @throws std::runtime_error as `applyPattern` does
    DecimalFormat(const std::string& pattern, const DecimalFormatSymbols& symbols);

    /// Compiles `pattern`, with `symbols` moved into the object.
    ///
    /// @throws std::runtime_error as `applyPattern` does
    DecimalFormat(const std::string& pattern, DecimalFormatSymbols&& symbols);

    /// Copies everything; the copy is independent.
    DecimalFormat(const DecimalFormat& other);

    /// Copies everything; the copy is independent. Assigning an object to itself changes nothing.
    DecimalFormat& operator=(const DecimalFormat& other);

    ~DecimalFormat() override;

    /// Compiles `pattern` in place of the present one. Compiling overwrites what the setters
    /// stored and keeps the symbols.
    ///
    /// After a failure, the object holds the parts of `pattern` before the failing one.
    ///
    /// @throws std::runtime_error with one of these texts:
    ///         "digit mark (#) following zero-index", "zero mark following digit",
    ///         "digit mark (#) following zero in exponent", "multiplier already set",
    ///         "separator character expected", "end of pattern expected"
    void applyPattern(const std::string& pattern);

    using NumberFormat::format;

    /// Appends the text of a whole number, without multiplier and rounding. The fraction consists
    /// of the minimum number of zeros. A pattern with an exponent formats `value` as a `double`.
    ///
    ///     "#,##0.###"  -1234567 -> "-1,234,567"      "#,##0%"  5 -> "5%"
    ///
    /// @throws std::out_of_range outside the range of 32 bits, where `long` is wider than that
    std::string& format(long value, std::string& out) const override;

    /// Appends the text of a number.
    ///
    /// Rounding adds half a unit of the last fraction digit to the magnitude, as a sum of two
    /// `double`, and cuts off the digits after it. The stored value decides: ties of whole numbers
    /// go away from zero, while a tie in the fraction may go either way. Integer digits are exact
    /// below 2 to the power 53; above that they come from repeated division of a `double` by ten.
    /// Integer digits beyond the maximum are dropped.
    ///
    /// @param value  any binary64; NaN and the infinities have texts of their own
    /// @throws nothing of its own
    ///
    ///     "0"     2.5    -> "3"        "0.00"     1.005 -> "1.00"      "#"  0.0 -> ""
    ///     "0.0%"  0.1234 -> "12.3%"    "0.##E0"   1234  -> "1.23E3"
    std::string& format(double value, std::string& out) const override;

private:
    friend class DecimalForm;

    std::size_t parseAffix(const std::string& pattern, std::size_t position, std::string& affix,
                           bool suffix);
    std::size_t parseStatic(const std::string& pattern, std::size_t position, std::string& text,
                            bool suffix);
    std::size_t parsePattern(const std::string& pattern, std::size_t position, bool negative);
    std::size_t parseInteger(const std::string& pattern, std::size_t position, bool negative);
    std::size_t parseFraction(const std::string& pattern, std::size_t position, bool negative);
    std::size_t parseExponent(const std::string& pattern, std::size_t position, bool negative);
    void reset();

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
