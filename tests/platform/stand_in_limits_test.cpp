// The limits of our stand-in operations, which the contract doesn't demand: they have one locale
// and accept no default arguments.

#include "platform/LastError.h"
#include "platform/LocaleServices.h"
#include "platform/MessageTables.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace zem::msglib::platform {
namespace {

constexpr std::uint32_t english = localeIdentifier;
constexpr std::uint32_t german = 7;
constexpr SYSTEMTIME fields = {2001, 9, 6, 8, 0, 0, 0, 0};
char buffer[8];

int fetch(std::uint32_t flags, const void* module, char16_t* text) {
    return static_cast<int>(FormatMessageW(flags, module, 1, 0x409, text, 0, nullptr));
}

int convert(std::uint32_t codePage, int count) {
    return WideCharToMultiByte(codePage, 0, u"a", count, buffer, 8, nullptr, nullptr);
}

template <class Operation>
void expectNoDefaults(const Operation& operation) {
    EXPECT_EQ(operation(english, 1, &fields, "x", buffer, 8), 0);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_FLAGS);
    EXPECT_EQ(operation(german, 0, &fields, "x", buffer, 8), 0);
    EXPECT_EQ(operation(english, 0, nullptr, "x", buffer, 8), 0);
    EXPECT_EQ(operation(english, 0, &fields, nullptr, buffer, 8), 0);
    EXPECT_EQ(operation(english, 0, &fields, "x", nullptr, 8), 0);
    EXPECT_EQ(operation(english, 0, &fields, "x", buffer, -1), 0);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
}

TEST(StandInLimits, FailuresSetTheLastError) {
    expectNoDefaults(GetDateFormatA);
    expectNoDefaults(GetTimeFormatA);
    static const void* const program = [] {
        MEMORY_BASIC_INFORMATION information;
        VirtualQuery("literal", &information, sizeof information);
        return information.AllocationBase;
    }();
    static char16_t text[4];
    const struct {
        int line;
        int (*operation)();
        std::uint32_t reason;
    } rows[] = {
        {__LINE__, [] { return GetLocaleInfoA(german, LOCALE_SDECIMAL, nullptr, 0); }, 87},
        {__LINE__, [] { return fetch(0xA00, program, text); }, ERROR_INVALID_FLAGS},
        {__LINE__, [] { return fetch(0xB00, program, nullptr); }, ERROR_INVALID_PARAMETER},
        {__LINE__, [] { return fetch(0xB00, program, text); }, ERROR_MR_MID_NOT_FOUND},
        {__LINE__, [] { return convert(CP_UTF8, -1); }, ERROR_INVALID_PARAMETER},
        {__LINE__, [] { return convert(0, 1); }, ERROR_INVALID_PARAMETER},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(row.operation(), 0);
        EXPECT_EQ(GetLastError(), row.reason);
        EXPECT_EQ(GetLocaleInfoA(english, LOCALE_SDECIMAL, nullptr, 0), 2);
        EXPECT_EQ(GetLastError(), row.reason) << "a success changes the last error";
    }
    EXPECT_EQ(ConvertDefaultLocale(german), german);
    EXPECT_FALSE(IsValidLocale(german, LCID_INSTALLED));
}

} // namespace
} // namespace zem::msglib::platform
