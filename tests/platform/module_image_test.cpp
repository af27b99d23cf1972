#include "ContractTexts.h"
#include "SecondTexts.h"
#include "platform/LastError.h"
#include "platform/MessageTables.h"
#include "support/Wine.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>

namespace zem::msglib::platform {
namespace {

const int constantOfThisProgram = 1;
int variableOfThisProgram = 1;
int zeroedOfThisProgram[100000];

HMODULE moduleOf(const void* address) {
    MEMORY_BASIC_INFORMATION information;
    const std::size_t size = VirtualQuery(address, &information, sizeof information);
    return size != 0 && information.Type == MEM_IMAGE ? information.AllocationBase : nullptr;
}

TEST(VirtualQueryTest, OneModuleHoldsAllOfThisProgram) {
    const HMODULE program = moduleOf(&constantOfThisProgram);
    ASSERT_NE(program, nullptr);
    EXPECT_EQ(program, moduleOf(&variableOfThisProgram));
    EXPECT_EQ(program, moduleOf(&zeroedOfThisProgram[99999]));
    EXPECT_EQ(program, moduleOf("literal"));
    EXPECT_EQ(program, moduleOf(reinterpret_cast<const void*>(&moduleOf)));
    EXPECT_EQ(program, moduleOf(program));
}

TEST(VirtualQueryTest, OtherAddressesAreInNoModule) {
    const int onStack = 0;
    const auto onHeap = std::make_unique<int>();
    for (const void* address :
         {static_cast<const void*>(nullptr), static_cast<const void*>(&onStack),
          static_cast<const void*>(onHeap.get()), reinterpret_cast<const void*>(UINTPTR_MAX)}) {
        EXPECT_EQ(moduleOf(address), nullptr) << address;
    }
}

TEST(VirtualQueryTest, NeedsRoomForAllItTells) {
    MEMORY_BASIC_INFORMATION information;
    EXPECT_EQ(VirtualQuery(&constantOfThisProgram, &information, sizeof information - 1), 0U);
    EXPECT_EQ(VirtualQuery(&constantOfThisProgram, nullptr, 0), 0U);
}

/// Fetches the text of a message; "failed for" and the reason if there is none.
std::string fetch(HMODULE module, std::uint32_t messageId, std::uint32_t languageId) {
    char16_t* text = nullptr;
    const std::uint32_t units = FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_IGNORE_INSERTS |
            FORMAT_MESSAGE_FROM_HMODULE,
        module, messageId, languageId, reinterpret_cast<char16_t*>(&text), 0, nullptr);
    if (units == 0) {
        EXPECT_EQ(text, nullptr);
        return "failed for " + std::to_string(GetLastError());
    }
    EXPECT_EQ(text[units], 0);
    std::string bytes(3 * units, '?');
    bytes.resize(static_cast<std::size_t>(
        WideCharToMultiByte(CP_UTF8, 0, text, static_cast<int>(units), bytes.data(),
                            static_cast<int>(bytes.size()), nullptr, nullptr)));
    LocalFree(text);
    return bytes;
}

TEST(FormatMessageTest, TextsComeAsTheTableHasThem) {
    const HMODULE program = moduleOf(&constantOfThisProgram);
    struct {
        int line;
        std::uint32_t messageId, languageId;
        const char* text;
        const char* underWine = nullptr;
    } const rows[] = {
        {__LINE__, MSG_LINES, 0x409, "Größe € \U0001D11E:\r\n  two\r\n\r\nfour\r\n"},
        {__LINE__, MSG_LINES, 0x407, "eins\r\n"},
        {__LINE__, MSG_INSERTS, 0x409, "%1 %2!s! 50 %\r\n", "%1 %2!s! 50 %\r\r\n"},
        {__LINE__, MSG_ESCAPES, 0x409, "a%nb%rc%td%%e%!f% g%.\r\n", "a\r\nb\rc\td%%e%!f% g%.\r\n"},
        {__LINE__, MSG_SECOND_FILE, 0x409, "second\r\n"},
        {__LINE__, MSG_LINES + 0x100, 0x409, "failed for 317"},
        {__LINE__, MSG_LINES | 0x80000000, 0x409, "failed for 317"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const bool differs = row.underWine != nullptr && runsUnderWine();
        EXPECT_EQ(fetch(program, row.messageId, row.languageId),
                  differs ? row.underWine : row.text);
    }
}

// On Windows, a null module would mean the program itself.
TEST(FormatMessageTest, AsksModulesOnly) {
    EXPECT_EQ(fetch(nullptr, MSG_LINES, 0x409), "failed for 87");
    const auto onHeap = std::make_unique<char[]>(4096);
    for (const void* address :
         {static_cast<const void*>(zeroedOfThisProgram), static_cast<const void*>(onHeap.get())}) {
        EXPECT_EQ(fetch(address, MSG_LINES, 0x409).rfind("failed for ", 0), 0U);
    }
}

} // namespace
} // namespace zem::msglib::platform
