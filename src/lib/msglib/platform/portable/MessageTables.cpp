#include "platform/MessageTables.h"

#include "platform/portable/LastError.h"
#include "platform/portable/ModuleImage.h"

#include <cstdlib>
#include <cstring>

namespace zem::msglib::platform {

namespace {

constexpr std::uint32_t ERROR_NOT_ENOUGH_MEMORY = 8;

constexpr std::uint32_t supportedFlags =
    FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_FROM_HMODULE;

std::uint32_t failure(std::uint32_t reason) noexcept {
    setLastError(reason);
    return 0;
}

/// Returns a terminated copy, to be released by `LocalFree`; null if memory runs out.
char16_t* copyOf(const MessageText& text) noexcept {
    const std::size_t length = text.length();
    auto* copy = static_cast<char16_t*>(std::malloc((length + 1) * sizeof(char16_t)));
    if (copy != nullptr) {
        text.copyTo(copy);
        copy[length] = 0;
    }
    return copy;
}

} // namespace

std::size_t VirtualQuery(const void* address, MEMORY_BASIC_INFORMATION* information,
                         std::size_t size) noexcept {
    const HMODULE module = moduleHolding(address);
    if (information == nullptr || size < sizeof *information || module == nullptr) {
        return failure(ERROR_INVALID_PARAMETER);
    }
    *information = {};
    information->BaseAddress = const_cast<void*>(address);
    information->AllocationBase = const_cast<void*>(module);
    information->Type = MEM_IMAGE;
    return sizeof *information;
}

std::uint32_t FormatMessageW(std::uint32_t flags, HMODULE module, std::uint32_t messageId,
                             std::uint32_t languageId, char16_t* buffer, std::uint32_t,
                             void*) noexcept {
    if (flags != supportedFlags) {
        return failure(ERROR_INVALID_FLAGS);
    }
    if (module == nullptr || buffer == nullptr) {
        return failure(ERROR_INVALID_PARAMETER);
    }
    const MessageText text = findInModule(module, languageId, messageId);
    if (text.isEmpty()) {
        return failure(ERROR_MR_MID_NOT_FOUND);
    }
    char16_t* const copy = copyOf(text);
    if (copy == nullptr) {
        return failure(ERROR_NOT_ENOUGH_MEMORY);
    }
    std::memcpy(buffer, &copy, sizeof copy);
    return static_cast<std::uint32_t>(text.length());
}

void LocalFree(void* memory) noexcept {
    std::free(memory);
}

} // namespace zem::msglib::platform
