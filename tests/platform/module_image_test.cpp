#include "platform/LastError.h"
#include "platform/MessageTables.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>

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

TEST(ModuleImage, OneModuleContainsTheWholeProgram) {
    const HMODULE program = moduleOf(&constantOfThisProgram);
    ASSERT_NE(program, nullptr);
    for (const void* address :
         {static_cast<const void*>(&variableOfThisProgram),
          static_cast<const void*>(&zeroedOfThisProgram[99999]),
          static_cast<const void*>("literal"), reinterpret_cast<const void*>(&moduleOf), program}) {
        EXPECT_EQ(moduleOf(address), program) << address;
    }
}

// On Windows, a null module would mean the program itself.
TEST(ModuleImage, OtherAddressesAreInNoModuleAndHaveNoTexts) {
    const int onStack = 0;
    const auto onHeap = std::make_unique<char[]>(4096);
    for (const void* address :
         {static_cast<const void*>(nullptr), static_cast<const void*>(&onStack),
          static_cast<const void*>(onHeap.get()), reinterpret_cast<const void*>(UINTPTR_MAX)}) {
        EXPECT_EQ(moduleOf(address), nullptr) << address;
    }
    for (const void* module :
         {static_cast<const void*>(nullptr), static_cast<const void*>(zeroedOfThisProgram),
          static_cast<const void*>(onHeap.get())}) {
        char16_t* text = nullptr;
        EXPECT_EQ(FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_IGNORE_INSERTS |
                                     FORMAT_MESSAGE_FROM_HMODULE,
                                 module, 1, 0x409, reinterpret_cast<char16_t*>(&text), 0, nullptr),
                  0U);
        EXPECT_EQ(text, nullptr);
    }
}

TEST(ModuleImage, RejectsAStructureThatIsTooSmall) {
    MEMORY_BASIC_INFORMATION information;
    EXPECT_EQ(VirtualQuery(&constantOfThisProgram, &information, sizeof information - 1), 0U);
    EXPECT_EQ(VirtualQuery(&constantOfThisProgram, nullptr, 0), 0U);
}

} // namespace
} // namespace zem::msglib::platform
