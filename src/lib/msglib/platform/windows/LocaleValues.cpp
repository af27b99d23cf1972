#include "platform/LocaleServices.h"

// The system's header comes last: it defines macros with the names of our constants.
#include <windows.h>

namespace zem::msglib::platform {

int GetLocaleInfoA(std::uint32_t locale, std::uint32_t lctype, char* buffer, int size) noexcept {
    return ::GetLocaleInfoA(locale, lctype, buffer, size);
}

std::uint32_t ConvertDefaultLocale(std::uint32_t locale) noexcept {
    return ::ConvertDefaultLocale(locale);
}

bool IsValidLocale(std::uint32_t locale, std::uint32_t flags) noexcept {
    return ::IsValidLocale(locale, flags) != FALSE;
}

} // namespace zem::msglib::platform
