#pragma once

#include "msglib/Format.h"

#include <locale>

namespace zem::msglib {

/// Base class of the formatters of points in time.
///
/// The static factories return a new `SimpleDateFormat`, which the caller owns. Its pattern comes
/// from the platform's locale values.
///
/// Threads: const operations on one object may run concurrently; every other operation needs
/// exclusive access to it.
class MSGLIB_API DateFormat : public Format {
public:
    /// Selects one of the locale's date patterns.
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
    /// The pattern is empty if `style` is outside the enumeration or the platform lacks the locale
    /// value.
    ///
    /// @param locale  stored in the formatter; doesn't affect the text
    ///
    ///     getDateInstance(DateFormat::Short, locale) with 0 -> "1/1/1970"
    static DateFormat* getDateInstance(Style style, const std::locale& locale);

    /// Returns a new formatter of the time of day, with the locale's pattern.
    ///
    ///     getTimeInstance(locale) with 0 -> "12:00:00 AM"
    static DateFormat* getTimeInstance(const std::locale& locale);

protected:
    DateFormat() = default;
};

} // namespace zem::msglib
