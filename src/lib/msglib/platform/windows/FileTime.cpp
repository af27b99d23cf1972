#include "platform/LocaleServices.h"

// The system's header comes last: it defines macros with the names of our constants.
#include <windows.h>

namespace zem::msglib::platform {

static_assert(sizeof(FILETIME) == sizeof(::FILETIME));
static_assert(sizeof(SYSTEMTIME) == sizeof(::SYSTEMTIME));

bool SystemTimeToFileTime(const SYSTEMTIME* time, FILETIME* count) noexcept {
    return ::SystemTimeToFileTime(reinterpret_cast<const ::SYSTEMTIME*>(time),
                                  reinterpret_cast<::FILETIME*>(count)) != FALSE;
}

bool FileTimeToSystemTime(const FILETIME* count, SYSTEMTIME* time) noexcept {
    return ::FileTimeToSystemTime(reinterpret_cast<const ::FILETIME*>(count),
                                  reinterpret_cast<::SYSTEMTIME*>(time)) != FALSE;
}

} // namespace zem::msglib::platform
