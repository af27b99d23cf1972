#pragma once

#include "msglib/Format.h"

#include <locale>
#include <string>

namespace zem::msglib {

class DecimalFormat;

/// Base of the formatters of numbers: digit limits, the grouping switch and the reading of
/// arguments.
///
/// The static factories return a new `DecimalFormat`, which the caller owns. Its pattern comes from
/// the platform's locale values. A `ChoiceFormat` keeps the limits at zero and never reads them.
///
/// Digit limits are counts, and callers keep them non-negative. No minimum exceeds its maximum: a
/// setter changes the other limit of its pair where that is needed. Compiling a pattern overwrites
/// what the setters stored.
///
/// Threads: const operations may run at once on one object; every other operation needs it alone.
class MSGLIB_API NumberFormat : public Format {
public:
    /// What a factory makes a formatter for.
    enum FormatType : int { Number, Integer, Currency, Percent };

    NumberFormat(const NumberFormat&) = default;
    NumberFormat& operator=(const NumberFormat&) = default;
    ~NumberFormat() override;

    using Format::format;

    /// Appends the text of a number held by exact type (see `Format`), read as one `double`.
    ///
    /// Integers of 64 bits become the nearest `double`. An `Angle` of `r` radians reads as
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

    /// Returns a new formatter by the locale's pattern for plain numbers.
    ///
    /// @param locale  selects nothing: every value is the platform's for one fixed locale
    /// @throws std::runtime_error as `DecimalFormat::applyPattern` does, if the platform's values
    ///         make no pattern
    ///
    ///     getNumberInstance(locale) with 1234.5 -> "1,234.50"
    static NumberFormat* getNumberInstance(const std::locale& locale);

    /// Returns a new formatter of whole numbers, as `getNumberInstance` does. A value that isn't
    /// whole is rounded, unless the platform doesn't know the locale: the pattern is then
    /// "#,##0.###".
    static NumberFormat* getIntegerInstance(const std::locale& locale);

    /// Returns a new formatter of amounts in the locale's currency, as `getNumberInstance` does.
    static NumberFormat* getCurrencyInstance(const std::locale& locale);

    /// Returns a new formatter of percentages, as `getNumberInstance` does: 0.25 becomes "25.00%".
    static NumberFormat* getPercentInstance(const std::locale& locale);

    /// Returns whether a separator stands between groups of integer digits.
    bool getGroupingUsed() const { return groupingUsed_; }

    /// Returns the most fraction digits that are written. It also fixes the rounding position.
    int getMaximumFractionDigits() const { return maximumFractionDigits_; }

    /// Returns the most integer digits that are written. Higher digits are dropped.
    int getMaximumIntegerDigits() const { return maximumIntegerDigits_; }

    /// Returns how many fraction digits are always written.
    int getMinimumFractionDigits() const { return minimumFractionDigits_; }

    /// Returns how many integer digits are always written, with leading zeros.
    int getMinimumIntegerDigits() const { return minimumIntegerDigits_; }

    /// Switches grouping. The group size is the pattern's.
    void setGroupingUsed(bool value);

    /// Sets the most fraction digits, and lowers their minimum to it if need be.
    void setMaximumFractionDigits(int value);

    /// Sets the most integer digits, and lowers their minimum to it if need be.
    void setMaximumIntegerDigits(int value);

    /// Sets the fewest fraction digits, and raises their maximum to it if need be.
    void setMinimumFractionDigits(int value);

    /// Sets the fewest integer digits, and raises their maximum to it if need be.
    void setMinimumIntegerDigits(int value);

protected:
    /// All limits zero and grouping off, until a derived class sets them.
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
