#include "platform/portable/Locales.h"
#include "platform/portable/TextBuffer.h"

#include <cstddef>
#include <cstring>
#include <string_view>

// The values of the one locale, in a table that the compiler builds. Every entry has the same size,
// so a value is copied by instructions of a fixed length if the caller's buffer has space for it.

namespace zem::msglib::platform {

namespace {

/// A value with its terminator, in an array of the size that is always copied.
struct Value {
    char text[24];
    int size; ///< with the terminator; 0 for a number without a value
};

constexpr std::size_t slots = LOCALE_SNEGATIVESIGN + 3;

/// Returns the index of a number's value in the table; an empty slot for a number without a value.
constexpr std::size_t slotOf(std::uint32_t lctype) noexcept {
    if (lctype <= LOCALE_SNEGATIVESIGN) {
        return lctype;
    }
    return lctype == LOCALE_STIMEFORMAT ? slots - 2 : lctype == LOCALE_INEGNUMBER ? slots - 1 : 0;
}

struct Values {
    Value in[slots];

    template <std::size_t Size>
    constexpr void set(std::uint32_t lctype, const char (&text)[Size]) noexcept {
        Value& value = in[slotOf(lctype)];
        for (std::size_t i = 0; i < Size; ++i) {
            value.text[i] = text[i];
        }
        value.size = static_cast<int>(Size);
    }
};

constexpr Values makeValues() noexcept {
    Values values{};
    values.set(LOCALE_SDECIMAL, ".");
    values.set(LOCALE_STHOUSAND, ",");
    values.set(LOCALE_SGROUPING, "3;0");
    values.set(LOCALE_IDIGITS, "2");
    values.set(LOCALE_ILZERO, "1");
    values.set(LOCALE_SNATIVEDIGITS, "0123456789");
    values.set(LOCALE_SCURRENCY, "$");
    values.set(LOCALE_SINTLSYMBOL, "USD");
    values.set(LOCALE_SMONDECIMALSEP, ".");
    values.set(LOCALE_SMONTHOUSANDSEP, ",");
    values.set(LOCALE_SMONGROUPING, "3;0");
    values.set(LOCALE_ICURRDIGITS, "2");
    values.set(LOCALE_ICURRENCY, "0");
    values.set(LOCALE_INEGCURR, "0");
    values.set(LOCALE_SSHORTDATE, "M/d/yyyy");
    values.set(LOCALE_SLONGDATE, "dddd, MMMM d, yyyy");
    values.set(LOCALE_ILDATE, "0");
    values.set(LOCALE_SNEGATIVESIGN, "-");
    values.set(LOCALE_STIMEFORMAT, "h:mm:ss tt");
    values.set(LOCALE_INEGNUMBER, "1");
    return values;
}

constexpr Values values = makeValues();

} // namespace

int GetLocaleInfoA(std::uint32_t locale, std::uint32_t lctype, char* buffer, int size) noexcept {
    if (!isKnownLocale(locale) || !TextBuffer::accepts(buffer, size)) {
        setLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    const Value& value = values.in[slotOf(lctype)];
    if (value.size == 0) {
        setLastError(ERROR_INVALID_FLAGS);
        return 0;
    }
    if (size >= static_cast<int>(sizeof value.text)) {
        std::memcpy(buffer, value.text, sizeof value.text);
        return value.size;
    }
    TextBuffer text(buffer, size);
    text.append(std::string_view(value.text, static_cast<std::size_t>(value.size) - 1));
    return text.finish();
}

std::uint32_t ConvertDefaultLocale(std::uint32_t locale) noexcept {
    return locale == localeIdentifier ? fullLocaleIdentifier : locale;
}

bool IsValidLocale(std::uint32_t locale, std::uint32_t flags) noexcept {
    return flags == LCID_INSTALLED && isKnownLocale(locale);
}

} // namespace zem::msglib::platform
