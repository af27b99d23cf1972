#include "platform/LocaleServices.h"

// The system's header comes last: it defines macros of the same names as the constants above.
#include <windows.h>

namespace zem::msglib::platform {

static_assert(sizeof(FILETIME) == sizeof(::FILETIME));
static_assert(sizeof(SYSTEMTIME) == sizeof(::SYSTEMTIME));

namespace {

const ::SYSTEMTIME* native(const SYSTEMTIME* time) noexcept {
    return reinterpret_cast<const ::SYSTEMTIME*>(time);
}

} // namespace

int GetLocaleInfoA(std::uint32_t locale, std::uint32_t lctype, char* buffer, int size) noexcept {
    return ::GetLocaleInfoA(locale, lctype, buffer, size);
}

std::uint32_t ConvertDefaultLocale(std::uint32_t locale) noexcept {
    return ::ConvertDefaultLocale(locale);
}

bool IsValidLocale(std::uint32_t locale, std::uint32_t flags) noexcept {
    return ::IsValidLocale(locale, flags) != FALSE;
}

int GetDateFormatA(std::uint32_t locale, std::uint32_t flags, const SYSTEMTIME* date,
                   const char* picture, char* buffer, int size) noexcept {
    return ::GetDateFormatA(locale, flags, native(date), picture, buffer, size);
}

int GetTimeFormatA(std::uint32_t locale, std::uint32_t flags, const SYSTEMTIME* time,
                   const char* picture, char* buffer, int size) noexcept {
    return ::GetTimeFormatA(locale, flags, native(time), picture, buffer, size);
}

bool SystemTimeToFileTime(const SYSTEMTIME* time, FILETIME* count) noexcept {
    return ::SystemTimeToFileTime(native(time), reinterpret_cast<::FILETIME*>(count)) != FALSE;
}

bool FileTimeToSystemTime(const FILETIME* count, SYSTEMTIME* time) noexcept {
    return ::FileTimeToSystemTime(reinterpret_cast<const ::FILETIME*>(count),
                                  reinterpret_cast<::SYSTEMTIME*>(time)) != FALSE;
}

} // namespace zem::msglib::platform
