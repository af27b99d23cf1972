#pragma once

#include "msglib/Format.h"

#include <locale>
#include <string>

namespace zem::msglib {

class DecimalFormat;

/// Base class of the formatters of numbers: digit limits, the grouping switch and the conversion of
/// arguments to numbers.
///
/// The static factories return a new `DecimalFormat`, which the caller owns. Its pattern comes from
/// the platform's locale values. A `ChoiceFormat` has limits of zero and ignores them.
///
/// Digit limits are counts; callers must not pass negative ones. No minimum exceeds its maximum: a
/// setter also changes the other limit of its pair if necessary. Compiling a pattern overwrites
/// what the setters stored.
///
/// Threads: const operations on one object may run concurrently; every other operation needs
/// exclusive access to it.
class MSGLIB_API NumberFormat : public Format {
public:
    /// The use that a factory creates a formatter for.
    enum FormatType : int { Number, Integer, Currency, Percent };

    NumberFormat(const NumberFormat&) = default;
    NumberFormat& operator=(const NumberFormat&) = default;
    ~NumberFormat() override;

    using Format::format;

    /// Appends the text of a numeric argument (see `Format`), converted to `double`.
    ///
    /// Integers of 64 bits become the nearest `double`. An `Angle` of `r` radians becomes
    /// `(r * 180.0) / 3.141592653589793`.
    ///
    /// @throws std::runtime_error "Argument is not a number." for any other kind, text included
    /// @throws std::out_of_range  for a `long` or `unsigned long` outside its 32-bit range
    std::string& format(const boost::any& value, std::string& out) const override;

    /// Appends the text of a whole number to `out` and returns `out`.
    ///
    /// @throws std::out_of_range outside the range of 32 bits, where `long` is wider than that
    virtual std::string& format(long value, std::string& out) const = 0;

    /// Appends the text of `value` to `out` and returns `out`.
    virtual std::string& format(double value, std::string& out) const = 0;

    /// Returns a new formatter with the locale's pattern for plain numbers.
    ///
    /// @param locale  ignored: every query is for one fixed locale
    /// @throws std::runtime_error as `DecimalFormat::applyPattern` does, if the platform's values
    ///         form no valid pattern
    ///
    ///     getNumberInstance(locale) with 1234.5 -> "1,234.50"
    static NumberFormat* getNumberInstance(const std::locale& locale);

    /// Returns a new formatter of whole numbers, as `getNumberInstance` does. Other values are
    /// rounded, except on a platform that doesn't have the locale: the pattern is then
    /// "#,##0.###".
    static NumberFormat* getIntegerInstance(const std::locale& locale);

    /// Returns a new formatter of amounts in the locale's currency, as `getNumberInstance` does.
    static NumberFormat* getCurrencyInstance(const std::locale& locale);

    /// Returns a new formatter of percentages, as `getNumberInstance` does: 0.25 becomes "25.00%".
    static NumberFormat* getPercentInstance(const std::locale& locale);

    /// Returns whether integer digits are grouped.
    bool getGroupingUsed() const { return groupingUsed_; }

    /// Returns the maximum number of fraction digits. It also determines the rounding position.
    int getMaximumFractionDigits() const { return maximumFractionDigits_; }

    /// Returns the maximum number of integer digits. Higher digits are dropped.
    int getMaximumIntegerDigits() const { return maximumIntegerDigits_; }

    /// Returns the minimum number of fraction digits. Shorter fractions are padded with zeros.
    int getMinimumFractionDigits() const { return minimumFractionDigits_; }

    /// Returns the minimum number of integer digits. Shorter numbers are padded with zeros.
    int getMinimumIntegerDigits() const { return minimumIntegerDigits_; }

    /// Switches grouping on or off. The pattern determines the group size.
    void setGroupingUsed(bool value);

    /// Sets the maximum number of fraction digits, and lowers the minimum to it if necessary.
    void setMaximumFractionDigits(int value);

    /// Sets the maximum number of integer digits, and lowers the minimum to it if necessary.
    void setMaximumIntegerDigits(int value);

    /// Sets the minimum number of fraction digits, and raises the maximum to it if necessary.
    void setMinimumFractionDigits(int value);

    /// Sets the minimum number of integer digits, and raises the maximum to it if necessary.
    void setMinimumIntegerDigits(int value);

protected:
    // All limits are zero and grouping is off until a derived class sets them.
    NumberFormat() = default;

    bool groupingUsed_ = false;     ///< see `getGroupingUsed`
    int maximumFractionDigits_ = 0; ///< see `getMaximumFractionDigits`
    int maximumIntegerDigits_ = 0;  ///< see `getMaximumIntegerDigits`
    int minimumFractionDigits_ = 0; ///< see `getMinimumFractionDigits`
    int minimumIntegerDigits_ = 0;  ///< see `getMinimumIntegerDigits`

private:
    static NumberFormat* createInstance(const std::locale& locale, FormatType type,
                                        const char* fallback);

    static std::string getNumberFormat(const std::locale& locale, const char* fallback);
    static std::string getIntegerFormat(const std::locale& locale, const char* fallback);
    static std::string getCurrencyFormat(const std::locale& locale, const char* fallback);
    static std::string getPercentFormat(const std::locale& locale, const char* fallback);
};

} // namespace zem::msglib
