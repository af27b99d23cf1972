#include "platform/LastError.h"
#include "platform/LocaleServices.h"

#include <gtest/gtest.h>

#include <cstring>
#include <utility>

namespace zem::msglib::platform {
namespace {

constexpr std::uint32_t unitedStates = 0x409;
constexpr std::uint32_t nowhere = 0x3F7F;

TEST(LocaleValues, WritesEveryValueForBothIdentifiers) {
    const std::pair<std::uint32_t, const char*> values[] = {
        {LOCALE_SDECIMAL, "."},       {LOCALE_STHOUSAND, ","},
        {LOCALE_SGROUPING, "3;0"},    {LOCALE_SNATIVEDIGITS, "0123456789"},
        {LOCALE_IDIGITS, "2"},        {LOCALE_SCURRENCY, "$"},
        {LOCALE_ILZERO, "1"},         {LOCALE_SINTLSYMBOL, "USD"},
        {LOCALE_SMONDECIMALSEP, "."}, {LOCALE_SMONTHOUSANDSEP, ","},
        {LOCALE_SMONGROUPING, "3;0"}, {LOCALE_SSHORTDATE, "M/d/yyyy"},
        {LOCALE_ICURRDIGITS, "2"},    {LOCALE_SLONGDATE, "dddd, MMMM d, yyyy"},
        {LOCALE_ICURRENCY, "0"},      {LOCALE_STIMEFORMAT, "h:mm:ss tt"},
        {LOCALE_INEGCURR, "0"},       {LOCALE_ILDATE, "0"},
        {LOCALE_INEGNUMBER, "1"},     {LOCALE_SNEGATIVESIGN, "-"}};
    for (const auto& [lctype, value] : values) {
        SCOPED_TRACE(lctype);
        const int length = static_cast<int>(std::strlen(value)) + 1;
        for (const std::uint32_t locale : {localeIdentifier, unitedStates}) {
            char buffer[64] = {};
            EXPECT_EQ(GetLocaleInfoA(locale, lctype, nullptr, 0), length);
            EXPECT_EQ(GetLocaleInfoA(locale, lctype, buffer, length), length);
            EXPECT_STREQ(buffer, value);
        }
    }
}

TEST(LocaleValues, FailuresSetTheLastError) {
    char buffer[64];
    const auto reason = [](std::uint32_t locale, std::uint32_t lctype, char* out, int size) {
        EXPECT_EQ(GetLocaleInfoA(locale, lctype, out, size), 0);
        return GetLastError();
    };
    EXPECT_EQ(reason(nowhere, LOCALE_SDECIMAL, buffer, 64), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(reason(9, 0, buffer, 64), ERROR_INVALID_FLAGS);
    EXPECT_EQ(reason(9, 0xFFFFFFFF, nullptr, 0), ERROR_INVALID_FLAGS);
    EXPECT_EQ(reason(9, LOCALE_SDECIMAL, nullptr, 64), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(reason(9, LOCALE_SDECIMAL, buffer, -1), ERROR_INVALID_PARAMETER);
    EXPECT_EQ(reason(9, LOCALE_SDECIMAL, buffer, 1), ERROR_INSUFFICIENT_BUFFER);
    EXPECT_EQ(reason(9, LOCALE_SLONGDATE, buffer, 18), ERROR_INSUFFICIENT_BUFFER);
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
