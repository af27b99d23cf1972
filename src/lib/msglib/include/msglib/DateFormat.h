#pragma once

#include "msglib/Format.h"

#include <locale>

namespace zem::msglib {

/// Base of the formatters of points in time, with the factories that pick a pattern from the
/// platform's locale values.
///
/// What the factories return is a new `SimpleDateFormat`, which the caller owns.
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

    /// Returns a new formatter of dates in `style`; any other value of the enumeration gives the
    /// empty pattern.
    ///
    /// `locale` is kept in the formatter and selects nothing. A value that the platform doesn't
    /// have is the empty pattern.
    static DateFormat* getDateInstance(Style style, const std::locale& locale);

    /// Returns a new formatter of the time of day, by the locale's pattern.
    static DateFormat* getTimeInstance(const std::locale& locale);

protected:
    DateFormat() = default;
};

} // namespace zem::msglib
