#include "platform/MessageTables.h"

#include <cstddef>

// The system's header comes last: it defines macros with the names of our constants.
#include <windows.h>

namespace zem::msglib::platform {

static_assert(sizeof(MEMORY_BASIC_INFORMATION) == sizeof(::MEMORY_BASIC_INFORMATION));
static_assert(offsetof(MEMORY_BASIC_INFORMATION, AllocationBase) ==
              offsetof(::MEMORY_BASIC_INFORMATION, AllocationBase));
static_assert(offsetof(MEMORY_BASIC_INFORMATION, Type) ==
              offsetof(::MEMORY_BASIC_INFORMATION, Type));
static_assert(sizeof(char16_t) == sizeof(wchar_t));

namespace {

/// Returns whether `module` is a loaded image. To the system, a null one would mean the program
/// itself.
bool isImage(HMODULE module) noexcept {
    ::MEMORY_BASIC_INFORMATION information{};
    return module != nullptr &&
           ::VirtualQuery(module, &information, sizeof information) == sizeof information &&
           information.Type == MEM_IMAGE && information.AllocationBase == module;
}

} // namespace

std::size_t VirtualQuery(const void* address, MEMORY_BASIC_INFORMATION* information,
                         std::size_t size) noexcept {
    auto* const native = reinterpret_cast<::MEMORY_BASIC_INFORMATION*>(information);
    return ::VirtualQuery(address, native, size);
}

std::uint32_t FormatMessageW(std::uint32_t flags, HMODULE module, std::uint32_t messageId,
                             std::uint32_t languageId, char16_t* buffer, std::uint32_t size,
                             void* arguments) noexcept {
    if (!isImage(module)) {
        ::SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    return ::FormatMessageW(flags, module, messageId, languageId,
                            reinterpret_cast<wchar_t*>(buffer), size,
                            static_cast<va_list*>(arguments));
}

int WideCharToMultiByte(std::uint32_t codePage, std::uint32_t flags, const char16_t* text,
                        int count, char* output, int size, const char* defaultCharacter,
                        bool* usedDefaultCharacter) noexcept {
    BOOL used = FALSE;
    const int written = ::WideCharToMultiByte(
        codePage, flags, reinterpret_cast<const wchar_t*>(text), count, output, size,
        defaultCharacter, usedDefaultCharacter != nullptr ? &used : nullptr);
    if (usedDefaultCharacter != nullptr) {
        *usedDefaultCharacter = used != FALSE;
    }
    return written;
}

void LocalFree(void* memory) noexcept {
    ::LocalFree(memory);
}

} // namespace zem::msglib::platform
