#include "platform/LastError.h"
#include "platform/LocaleServices.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace zem::msglib::platform {
namespace {

constexpr std::uint32_t unitedStates = 0x409;
constexpr std::uint32_t nowhere = 0x3F7F;

TEST(LocaleValues, WritesEveryValueForBothIdentifiers) {
    struct {
        int line;
        std::uint32_t lctype;
        const char* value;
    } const rows[] = {
        {__LINE__, LOCALE_SDECIMAL, "."},
        {__LINE__, LOCALE_STHOUSAND, ","},
        {__LINE__, LOCALE_SGROUPING, "3;0"},
        {__LINE__, LOCALE_IDIGITS, "2"},
        {__LINE__, LOCALE_ILZERO, "1"},
        {__LINE__, LOCALE_SNATIVEDIGITS, "0123456789"},
        {__LINE__, LOCALE_SCURRENCY, "$"},
        {__LINE__, LOCALE_SINTLSYMBOL, "USD"},
        {__LINE__, LOCALE_SMONDECIMALSEP, "."},
        {__LINE__, LOCALE_SMONTHOUSANDSEP, ","},
        {__LINE__, LOCALE_SMONGROUPING, "3;0"},
        {__LINE__, LOCALE_ICURRDIGITS, "2"},
        {__LINE__, LOCALE_ICURRENCY, "0"},
        {__LINE__, LOCALE_INEGCURR, "0"},
        {__LINE__, LOCALE_SSHORTDATE, "M/d/yyyy"},
        {__LINE__, LOCALE_SLONGDATE, "dddd, MMMM d, yyyy"},
        {__LINE__, LOCALE_ILDATE, "0"},
        {__LINE__, LOCALE_SNEGATIVESIGN, "-"},
        {__LINE__, LOCALE_STIMEFORMAT, "h:mm:ss tt"},
        {__LINE__, LOCALE_INEGNUMBER, "1"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const int length = static_cast<int>(std::strlen(row.value)) + 1;
        for (const std::uint32_t locale : {localeIdentifier, unitedStates}) {
            char buffer[64] = {};
            EXPECT_EQ(GetLocaleInfoA(locale, row.lctype, nullptr, 0), length);
            EXPECT_EQ(GetLocaleInfoA(locale, row.lctype, buffer, length), length);
            EXPECT_STREQ(buffer, row.value);
        }
    }
}

TEST(LocaleValues, RefusalsLeaveTheirReason) {
    char buffer[64];
    struct {
        int line;
        std::uint32_t locale, lctype;
        char* buffer;
        int size;
        std::uint32_t reason;
    } const rows[] = {
        {__LINE__, nowhere, LOCALE_SDECIMAL, buffer, 64, ERROR_INVALID_PARAMETER},
        {__LINE__, 9, 0, buffer, 64, ERROR_INVALID_FLAGS},
        {__LINE__, 9, 0xFFFFFFFF, nullptr, 0, ERROR_INVALID_FLAGS},
        {__LINE__, 9, LOCALE_SDECIMAL, nullptr, 64, ERROR_INVALID_PARAMETER},
        {__LINE__, 9, LOCALE_SDECIMAL, buffer, -1, ERROR_INVALID_PARAMETER},
        {__LINE__, 9, LOCALE_SDECIMAL, buffer, 1, ERROR_INSUFFICIENT_BUFFER},
        {__LINE__, 9, LOCALE_SLONGDATE, buffer, 18, ERROR_INSUFFICIENT_BUFFER},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(GetLocaleInfoA(row.locale, row.lctype, row.buffer, row.size), 0);
        EXPECT_EQ(GetLastError(), row.reason);
    }
}

TEST(LocaleValues, TheFixedLocaleIsValid) {
    const std::uint32_t full = ConvertDefaultLocale(localeIdentifier);
    EXPECT_EQ(full, unitedStates);
    EXPECT_TRUE(IsValidLocale(full, LCID_INSTALLED));
    EXPECT_TRUE(IsValidLocale(localeIdentifier, LCID_INSTALLED));
    EXPECT_EQ(ConvertDefaultLocale(nowhere), nowhere);
    EXPECT_FALSE(IsValidLocale(nowhere, LCID_INSTALLED));
}

} // namespace
} // namespace zem::msglib::platform
