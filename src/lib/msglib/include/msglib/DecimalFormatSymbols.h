#pragma once

#include "msglib/Export.h"

#include <locale>
#include <string>

namespace zem::msglib {

/// The texts and characters that a number is written with.
///
/// A value that changes only by assignment; copies are independent. The texts are the platform's
/// bytes and of any length, empty ones included. A moved-from object holds unspecified texts.
///
/// Threads: const operations may run at once on one object; every other operation needs it alone.
class MSGLIB_API DecimalFormatSymbols {
public:
    /// Asks the platform for the locale's symbols. A symbol that the platform doesn't have stays at
    /// the starting value that its getter names.
    ///
    /// @param locale  selects nothing: every query is for one fixed locale
    ///
    ///     DecimalFormatSymbols().getGroupingSeparator() -> ","
    DecimalFormatSymbols(const std::locale& locale = std::locale());

    /// Copies everything; the copy is independent.
    DecimalFormatSymbols(const DecimalFormatSymbols& other);

    /// Takes everything from `other`.
    DecimalFormatSymbols(DecimalFormatSymbols&& other) noexcept;

    /// Copies everything; the copy is independent. Assigning an object to itself changes nothing.
    DecimalFormatSymbols& operator=(const DecimalFormatSymbols& other);

    /// Takes everything from `other`.
    DecimalFormatSymbols& operator=(DecimalFormatSymbols&& other) noexcept;

    ~DecimalFormatSymbols();

    /// The local currency symbol; starts as "$".
    std::string getCurrencySymbol() const { return currencySymbol_; }

    /// The text of infinity; always "1.#INF".
    std::string getInfinity() const { return infinity_; }

    /// The international currency symbol; starts as "$".
    std::string getInternationalCurrencySymbol() const { return internationalCurrencySymbol_; }

    /// The minus sign; starts as "-".
    std::string getMinusSign() const { return minusSign_; }

    /// The text of not-a-number; always "1.#NaN".
    std::string getNaN() const { return naN_; }

    /// The decimal separator of plain numbers; starts as ".".
    std::string getDecimalSeparator() const { return decimalSeparator_; }

    /// The decimal separator of amounts; starts as ".".
    std::string getMonetaryDecimalSeparator() const { return monetaryDecimalSeparator_; }

    /// The group separator of plain numbers; starts as ",".
    std::string getGroupingSeparator() const { return groupingSeparator_; }

    /// The group separator of amounts; starts as ",".
    std::string getMonetaryGroupingSeparator() const { return monetaryGroupingSeparator_; }

    /// The percent sign; always '%'. Patterns write '%' whatever this is.
    char getPercent() const { return percent_; }

    /// The digit zero; starts as '0'. The other digits are the nine bytes after it.
    char getZeroDigit() const { return zeroDigit_; }

    /// The mark before an exponent; always 'E'.
    char getExponential() const { return exponential_; }

private:
    friend class DecimalForm;
    friend class DecimalFormat;

    std::string currencySymbol_ = "$";
    std::string infinity_ = "1.#INF";
    std::string internationalCurrencySymbol_ = "$";
    std::string minusSign_ = "-";
    std::string naN_ = "1.#NaN";
    std::string decimalSeparator_ = ".";
    std::string monetaryDecimalSeparator_ = ".";
    std::string groupingSeparator_ = ",";
    std::string monetaryGroupingSeparator_ = ",";
    char percent_ = '%';
    char zeroDigit_ = '0';
    char exponential_ = 'E';
};

} // namespace zem::msglib
