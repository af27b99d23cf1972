#include "platform/LocaleServices.h"

// The system's header comes last: it defines macros with the names of our constants.
#include <windows.h>

namespace zem::msglib::platform {

static_assert(sizeof(SYSTEMTIME) == sizeof(::SYSTEMTIME));

namespace {

const ::SYSTEMTIME* native(const SYSTEMTIME* time) noexcept {
    return reinterpret_cast<const ::SYSTEMTIME*>(time);
}

} // namespace

int GetDateFormatA(std::uint32_t locale, std::uint32_t flags, const SYSTEMTIME* date,
                   const char* picture, char* buffer, int size) noexcept {
    return ::GetDateFormatA(locale, flags, native(date), picture, buffer, size);
}

int GetTimeFormatA(std::uint32_t locale, std::uint32_t flags, const SYSTEMTIME* time,
                   const char* picture, char* buffer, int size) noexcept {
    return ::GetTimeFormatA(locale, flags, native(time), picture, buffer, size);
}

} // namespace zem::msglib::platform
