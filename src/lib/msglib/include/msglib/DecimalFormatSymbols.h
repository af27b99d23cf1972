#pragma once

#include "msglib/Export.h"

#include <locale>
#include <string>

namespace zem::msglib {

/// The texts and characters that numbers are formatted with.
///
/// An object changes only by assignment; copies are independent. The texts are the platform's
/// bytes and may have any length, including zero. A moved-from object holds unspecified texts.
///
/// Threads: const operations on one object may run concurrently; every other operation needs
/// exclusive access to it.
class MSGLIB_API DecimalFormatSymbols {
public:
    /// Reads the locale's symbols from the platform. A symbol that the platform lacks has the
    /// default that its getter names.
    ///
    /// @param locale  ignored: every query is for one fixed locale
    ///
    ///     DecimalFormatSymbols().getGroupingSeparator() -> ","
    DecimalFormatSymbols(const std::locale& locale = std::locale());

    /// Copies everything; the copy is independent.
    DecimalFormatSymbols(const DecimalFormatSymbols& other);

    /// Moves everything out of `other`.
    DecimalFormatSymbols(DecimalFormatSymbols&& other) noexcept;

    /// Copies everything; the copy is independent. Assigning an object to itself changes nothing.
    DecimalFormatSymbols& operator=(const DecimalFormatSymbols& other);

    /// Moves everything out of `other`.
    DecimalFormatSymbols& operator=(DecimalFormatSymbols&& other) noexcept;

    ~DecimalFormatSymbols();

    /// Returns the local currency symbol; default "$".
    std::string getCurrencySymbol() const { return currencySymbol_; }

    /// Returns the text of infinity; always "1.#INF".
    std::string getInfinity() const { return infinity_; }

    /// Returns the international currency symbol; default "$".
    std::string getInternationalCurrencySymbol() const { return internationalCurrencySymbol_; }

    /// Returns the minus sign; default "-".
    std::string getMinusSign() const { return minusSign_; }

    /// Returns the text of NaN; always "1.#NaN".
    std::string getNaN() const { return naN_; }

    /// Returns the decimal separator of plain numbers; default ".".
    std::string getDecimalSeparator() const { return decimalSeparator_; }

    /// Returns the decimal separator of amounts; default ".".
    std::string getMonetaryDecimalSeparator() const { return monetaryDecimalSeparator_; }

    /// Returns the group separator of plain numbers; default ",".
    std::string getGroupingSeparator() const { return groupingSeparator_; }

    /// Returns the group separator of amounts; default ",".
    std::string getMonetaryGroupingSeparator() const { return monetaryGroupingSeparator_; }

    /// Returns the percent sign; always '%'. Patterns use '%' and ignore this.
    char getPercent() const { return percent_; }

    /// Returns the digit zero; default '0'. The other digits are the nine bytes after it.
    char getZeroDigit() const { return zeroDigit_; }

    /// Returns the character before an exponent; always 'E'.
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
