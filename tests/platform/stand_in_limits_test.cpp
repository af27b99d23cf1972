// What the operations of this system refuse beyond their contract: they know one locale, and have
// no defaults.

#include "platform/LastError.h"
#include "platform/LocaleServices.h"
#include "platform/MessageTables.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace zem::msglib::platform {
namespace {

constexpr std::uint32_t german = 7;

TEST(StandInLimits, PicturesHaveNoDefaults) {
    const SYSTEMTIME fields = {2001, 9, 6, 8, 0, 0, 0, 0};
    char buffer[8];
    struct {
        int line;
        std::uint32_t locale, flags;
        const SYSTEMTIME* fields;
        const char* picture;
        int size;
        std::uint32_t reason;
    } const rows[] = {
        {__LINE__, german, 0, &fields, "x", 8, ERROR_INVALID_PARAMETER},
        {__LINE__, localeIdentifier, 1, &fields, "x", 8, ERROR_INVALID_FLAGS},
        {__LINE__, localeIdentifier, 0, nullptr, "x", 8, ERROR_INVALID_PARAMETER},
        {__LINE__, localeIdentifier, 0, &fields, nullptr, 8, ERROR_INVALID_PARAMETER},
        {__LINE__, localeIdentifier, 0, &fields, "x", -1, ERROR_INVALID_PARAMETER},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        for (const auto operation : {GetDateFormatA, GetTimeFormatA}) {
            EXPECT_EQ(operation(row.locale, row.flags, row.fields, row.picture, buffer, row.size),
                      0);
            EXPECT_EQ(GetLastError(), row.reason);
        }
    }
}

TEST(StandInLimits, OneLocale) {
    EXPECT_EQ(ConvertDefaultLocale(german), german);
    EXPECT_FALSE(IsValidLocale(german, LCID_INSTALLED));
    EXPECT_EQ(GetLocaleInfoA(german, LOCALE_SDECIMAL, nullptr, 0), 0);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
}

TEST(StandInLimits, SuccessLeavesTheReason) {
    EXPECT_EQ(GetLocaleInfoA(localeIdentifier, 0, nullptr, 0), 0);
    EXPECT_EQ(GetLocaleInfoA(localeIdentifier, LOCALE_SDECIMAL, nullptr, 0), 2);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_FLAGS);
}

TEST(StandInLimits, OnlyImagesAreKnownMemory) {
    const int onStack = 0;
    MEMORY_BASIC_INFORMATION information;
    EXPECT_EQ(VirtualQuery(&onStack, &information, sizeof information), 0U);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
}

TEST(StandInLimits, OneWayToAskForMessages) {
    const struct {
        int line;
        std::uint32_t flags;
        bool hasBuffer;
        std::uint32_t reason;
    } rows[] = {
        {__LINE__, 0xA00, true, ERROR_INVALID_FLAGS},
        {__LINE__, 0, true, ERROR_INVALID_FLAGS},
        {__LINE__, 0xB00, false, ERROR_INVALID_PARAMETER},
    };
    MEMORY_BASIC_INFORMATION program;
    ASSERT_NE(VirtualQuery("literal", &program, sizeof program), 0U);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        char16_t* text = nullptr;
        auto* const buffer = row.hasBuffer ? reinterpret_cast<char16_t*>(&text) : nullptr;
        EXPECT_EQ(FormatMessageW(row.flags, program.AllocationBase, 1, 0x409, buffer, 0, nullptr),
                  0U);
        EXPECT_EQ(GetLastError(), row.reason);
        EXPECT_EQ(text, nullptr);
    }
}

TEST(StandInLimits, OneCodePageAndCountedTexts) {
    char output[8];
    EXPECT_EQ(WideCharToMultiByte(CP_UTF8, 0, u"a", -1, output, 8, nullptr, nullptr), 0);
    EXPECT_EQ(WideCharToMultiByte(0, 0, u"a", 1, output, 8, nullptr, nullptr), 0);
    EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
}

} // namespace
} // namespace zem::msglib::platform
