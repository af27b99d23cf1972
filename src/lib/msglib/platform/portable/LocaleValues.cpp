#include "platform/portable/Locales.h"
#include "platform/portable/TextBuffer.h"

#include <string_view>

namespace zem::msglib::platform {

namespace {

/// Returns the value, or a view without data for a number that names none.
std::string_view localeValue(std::uint32_t lctype) noexcept {
    switch (lctype) {
    case LOCALE_SDECIMAL: return ".";
    case LOCALE_STHOUSAND: return ",";
    case LOCALE_SGROUPING: return "3;0";
    case LOCALE_IDIGITS: return "2";
    case LOCALE_ILZERO: return "1";
    case LOCALE_SNATIVEDIGITS: return "0123456789";
    case LOCALE_SCURRENCY: return "$";
    case LOCALE_SINTLSYMBOL: return "USD";
    case LOCALE_SMONDECIMALSEP: return ".";
    case LOCALE_SMONTHOUSANDSEP: return ",";
    case LOCALE_SMONGROUPING: return "3;0";
    case LOCALE_ICURRDIGITS: return "2";
    case LOCALE_ICURRENCY:
    case LOCALE_INEGCURR: return "0";
    case LOCALE_SSHORTDATE: return "M/d/yyyy";
    case LOCALE_SLONGDATE: return "dddd, MMMM d, yyyy";
    case LOCALE_ILDATE: return "0";
    case LOCALE_SNEGATIVESIGN: return "-";
    case LOCALE_STIMEFORMAT: return "h:mm:ss tt";
    case LOCALE_INEGNUMBER: return "1";
    default: return {};
    }
}

} // namespace

int GetLocaleInfoA(std::uint32_t locale, std::uint32_t lctype, char* buffer, int size) noexcept {
    const std::string_view value = localeValue(lctype);
    if (!isKnownLocale(locale) || !TextBuffer::accepts(buffer, size)) {
        setLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    if (value.data() == nullptr) {
        setLastError(ERROR_INVALID_FLAGS);
        return 0;
    }
    TextBuffer text(buffer, size);
    text.append(value);
    return text.finish();
}

std::uint32_t ConvertDefaultLocale(std::uint32_t locale) noexcept {
    return locale == localeIdentifier ? fullLocaleIdentifier : locale;
}

bool IsValidLocale(std::uint32_t locale, std::uint32_t flags) noexcept {
    return flags == LCID_INSTALLED && isKnownLocale(locale);
}

} // namespace zem::msglib::platform
