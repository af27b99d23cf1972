#include "support/FakeLocale.h"

#include "platform/LocaleServices.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zem::msglib {

FakeLocale::FakeLocale(const LocaleValues& changes) {
    using namespace platform;
    installed = true;
    values = changes;
    values.insert({{LOCALE_SDECIMAL, "."},
                   {LOCALE_STHOUSAND, ","},
                   {LOCALE_SGROUPING, "3;0"},
                   {LOCALE_IDIGITS, "2"},
                   {LOCALE_ILZERO, "1"},
                   {LOCALE_SNATIVEDIGITS, "0123"},
                   {LOCALE_SCURRENCY, "kr"},
                   {LOCALE_SINTLSYMBOL, "SEK"},
                   {LOCALE_SMONDECIMALSEP, "."},
                   {LOCALE_SMONTHOUSANDSEP, ","},
                   {LOCALE_SMONGROUPING, "3;0"},
                   {LOCALE_ICURRDIGITS, "2"},
                   {LOCALE_ICURRENCY, "0"},
                   {LOCALE_INEGCURR, "0"},
                   {LOCALE_SNEGATIVESIGN, "-"},
                   {LOCALE_INEGNUMBER, "1"}});
}

namespace platform {

constexpr std::uint32_t fullIdentifier = 0x1409;

namespace {

bool isDateValue(std::uint32_t lctype) {
    return lctype == LOCALE_SSHORTDATE || lctype == LOCALE_SLONGDATE || lctype == LOCALE_ILDATE ||
           lctype == LOCALE_STIMEFORMAT;
}

} // namespace

// A failure fills the buffer, so that code that ignores the result reads wrong digits.
int GetLocaleInfoA(std::uint32_t locale, std::uint32_t lctype, char* buffer, int size) noexcept {
    EXPECT_EQ(locale, localeIdentifier);
    EXPECT_EQ(size, isDateValue(lctype) ? 81 : 64);
    const auto found = FakeLocale::values.find(lctype);
    if (found == FakeLocale::values.end() || found->second.size() > 63) {
        std::fill_n(buffer, size, '7');
        return 0;
    }
    const std::string& value = found->second;
    buffer[value.copy(buffer, value.size())] = '\0';
    return static_cast<int>(value.size()) + 1;
}

std::uint32_t ConvertDefaultLocale(std::uint32_t locale) noexcept {
    EXPECT_EQ(locale, localeIdentifier);
    return fullIdentifier;
}

bool IsValidLocale(std::uint32_t locale, std::uint32_t flags) noexcept {
    EXPECT_EQ(locale, fullIdentifier);
    EXPECT_EQ(flags, LCID_INSTALLED);
    return FakeLocale::installed;
}

} // namespace platform

} // namespace zem::msglib
