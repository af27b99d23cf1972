#include "support/FakeMessages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <locale>
#include <memory>
#include <sstream>
#include <utility>

namespace zem::msglib {

namespace {

FakeMessages* inForce = nullptr;

} // namespace

FakeMessages::FakeMessages(std::map<std::uint32_t, std::string> asciiTexts)
    : texts(std::move(asciiTexts)) {
    inForce = this;
}

FakeMessages::~FakeMessages() {
    EXPECT_TRUE(held.empty() && badReleases == 0) << "a buffer was not released exactly once";
}

namespace platform {

std::size_t VirtualQuery(const void* address, MEMORY_BASIC_INFORMATION* information,
                         std::size_t) noexcept {
    const auto module = reinterpret_cast<std::uintptr_t>(address) & ~std::uintptr_t{0xFFFF};
    information->AllocationBase = reinterpret_cast<void*>(module);
    information->Type = inForce->memoryType;
    return inForce->queryResult;
}

std::uint32_t FormatMessageW(std::uint32_t flags, HMODULE module, std::uint32_t messageId,
                             std::uint32_t languageId, char16_t* buffer, std::uint32_t size,
                             void* arguments) noexcept {
    EXPECT_TRUE(size == 0 && arguments == nullptr);
    std::ostringstream lookUp;
    lookUp.imbue(std::locale::classic());
    lookUp << std::hex << flags << ' ' << module << ' ' << messageId << ' ' << languageId << ';';
    inForce->lookUps += lookUp.str();
    const std::string text = inForce->texts[messageId];
    if (text.empty() && !inForce->allocatesOnFailure) {
        return 0;
    }
    char16_t* const units = std::make_unique<char16_t[]>(text.size() + 1).release();
    std::copy(text.begin(), text.end(), units);
    inForce->held.insert(units);
    ++inForce->buffers;
    *reinterpret_cast<char16_t**>(buffer) = units;
    return static_cast<std::uint32_t>(text.size());
}

int WideCharToMultiByte(std::uint32_t codePage, std::uint32_t flags, const char16_t* text,
                        int count, char* output, int size, const char* defaultCharacter,
                        bool* usedDefaultCharacter) noexcept {
    EXPECT_TRUE(codePage == CP_UTF8 && flags == 0 && size >= count);
    EXPECT_TRUE(defaultCharacter == nullptr && usedDefaultCharacter == nullptr);
    if (++inForce->conversions == inForce->failingConversion) {
        return 0;
    }
    std::transform(text, text + count, output,
                   [](char16_t unit) { return static_cast<char>(unit); });
    return count;
}

void LocalFree(void* memory) noexcept {
    inForce->badReleases += inForce->held.erase(memory) == 1 ? 0 : 1;
    delete[] static_cast<char16_t*>(memory);
}

} // namespace platform

} // namespace zem::msglib
