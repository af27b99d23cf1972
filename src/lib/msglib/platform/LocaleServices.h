#pragma once

#include <cstdint>

/// Locale values, date and time pictures, and calendar arithmetic.
///
/// The operations have the names, numbers and conventions of the operating system that the library
/// was designed for. A length includes the terminator, size 0 queries the length, and the result 0
/// is a failure, whose reason `GetLastError` returns.
///
/// Threads: all operations may run concurrently.
namespace zem::msglib::platform {

/// The locale identifier of every query: English, without a country.
constexpr std::uint32_t localeIdentifier = 9;

/// The flag of `IsValidLocale`.
constexpr std::uint32_t LCID_INSTALLED = 1;

// The numbers of the locale values that the library queries.
constexpr std::uint32_t LOCALE_SDECIMAL = 14;
constexpr std::uint32_t LOCALE_STHOUSAND = 15;
constexpr std::uint32_t LOCALE_SGROUPING = 16;
constexpr std::uint32_t LOCALE_IDIGITS = 17;
constexpr std::uint32_t LOCALE_ILZERO = 18;
constexpr std::uint32_t LOCALE_SNATIVEDIGITS = 19;
constexpr std::uint32_t LOCALE_SCURRENCY = 20;
constexpr std::uint32_t LOCALE_SINTLSYMBOL = 21;
constexpr std::uint32_t LOCALE_SMONDECIMALSEP = 22;
constexpr std::uint32_t LOCALE_SMONTHOUSANDSEP = 23;
constexpr std::uint32_t LOCALE_SMONGROUPING = 24;
constexpr std::uint32_t LOCALE_ICURRDIGITS = 25;
constexpr std::uint32_t LOCALE_ICURRENCY = 27;
constexpr std::uint32_t LOCALE_INEGCURR = 28;
constexpr std::uint32_t LOCALE_SSHORTDATE = 31;
constexpr std::uint32_t LOCALE_SLONGDATE = 32;
constexpr std::uint32_t LOCALE_ILDATE = 34;
constexpr std::uint32_t LOCALE_SNEGATIVESIGN = 81;
constexpr std::uint32_t LOCALE_STIMEFORMAT = 4099;
constexpr std::uint32_t LOCALE_INEGNUMBER = 4112;

/// A count of 100-nanosecond units since 1601-01-01 00:00:00, in two halves.
struct FILETIME {
    std::uint32_t dwLowDateTime;
    std::uint32_t dwHighDateTime;
};

/// A point in time as calendar fields. Months and days count from 1, week days from Sunday, 0.
struct SYSTEMTIME {
    std::uint16_t wYear;
    std::uint16_t wMonth;
    std::uint16_t wDayOfWeek;
    std::uint16_t wDay;
    std::uint16_t wHour;
    std::uint16_t wMinute;
    std::uint16_t wSecond;
    std::uint16_t wMilliseconds;
};

/// Writes one value of a locale, with its terminator, into the `size` bytes at `buffer`.
///
/// @param lctype  one of the `LOCALE_` numbers above
/// @return the bytes written, or required if `size` is 0; 0 for an unknown locale (87), an unknown
///         value (1004) and a buffer that is too short (122)
int GetLocaleInfoA(std::uint32_t locale, std::uint32_t lctype, char* buffer, int size) noexcept;

/// Returns the full identifier for one without a country, and any other identifier unchanged.
std::uint32_t ConvertDefaultLocale(std::uint32_t locale) noexcept;

/// Returns whether the platform has the values of `locale`; `flags` is `LCID_INSTALLED`.
bool IsValidLocale(std::uint32_t locale, std::uint32_t flags) noexcept;

/// Writes a date by a picture: runs of `d`, `M`, `y` and `g` become fields; quoted text and any
/// other byte are copied.
///
/// The week day is computed from the date. The time of day is ignored.
///
/// @param flags    0
/// @param date     year 1601 to 30827, and a day that exists
/// @param picture  NUL-terminated
/// @return the bytes written with terminator, or required if `size` is 0; 0 for an invalid date
///         (87) and a buffer that is too short (122)
int GetDateFormatA(std::uint32_t locale, std::uint32_t flags, const SYSTEMTIME* date,
                   const char* picture, char* buffer, int size) noexcept;

/// Writes a time of day in the same way, with runs of `h`, `H`, `m`, `s` and `t` as fields.
///
/// @param time  hour to 23, minute and second to 59, milliseconds to 999; the date is ignored
int GetTimeFormatA(std::uint32_t locale, std::uint32_t flags, const SYSTEMTIME* time,
                   const char* picture, char* buffer, int size) noexcept;

/// Converts calendar fields to a count. The week day is ignored.
///
/// @return false for fields that aren't a valid time (87)
bool SystemTimeToFileTime(const SYSTEMTIME* time, FILETIME* count) noexcept;

/// Converts a count to calendar fields.
///
/// @return false from 2 to the power 63 on (87)
bool FileTimeToSystemTime(const FILETIME* count, SYSTEMTIME* time) noexcept;

} // namespace zem::msglib::platform
