#pragma once

#include "msglib/Format.h"

#include <locale>

namespace zem::msglib {

/// Base of the formatters of points in time.
///
/// The static factories return a new `SimpleDateFormat`, which the caller owns. Its pattern comes
/// from the platform's locale values.
///
/// Threads: const operations may run at once on one object; every other operation needs it alone.
class MSGLIB_API DateFormat : public Format {
public:
    /// Which of the locale's date patterns is meant.
    enum Style : int {
        Short,         ///< the locale's short date
        Long,          ///< the locale's long date
        Medium,        ///< "MMM dd yy", "dd MMM yy" or "yy MMM dd", in the locale's order
        ShortAlternate ///< as `Short`
    };

    DateFormat(const DateFormat&) = default;
    DateFormat& operator=(const DateFormat&) = default;
    ~DateFormat() override;

    using Format::format;

    /// Returns a new formatter of dates in `style`.
    ///
    /// The formatter has the empty pattern for a value outside the enumeration, and where the
    /// platform doesn't have the locale value.
    ///
    /// @param locale  kept in the formatter; selects nothing
    ///
    ///     getDateInstance(DateFormat::Short, locale) with 0 -> "1/1/1970"
    static DateFormat* getDateInstance(Style style, const std::locale& locale);

    /// Returns a new formatter of the time of day, by the locale's pattern.
    ///
    ///     getTimeInstance(locale) with 0 -> "12:00:00 AM"
    static DateFormat* getTimeInstance(const std::locale& locale);

protected:
    DateFormat() = default;
};

} // namespace zem::msglib
