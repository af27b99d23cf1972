#pragma once

#include <cstddef>
#include <cstdint>

/// Finds modules by an address inside them, and texts in their message tables.
///
/// The operations have the names, numbers and conventions of the operating system that the library
/// was designed for. The result 0 is a failure, whose reason `GetLastError` returns.
///
/// Threads: all operations may run concurrently.
namespace zem::msglib::platform {

/// A loaded module, given by the address where its image begins. It owns nothing.
using HMODULE = const void*;

// The flags of `FormatMessageW`, and the code page of `WideCharToMultiByte`.
constexpr std::uint32_t FORMAT_MESSAGE_ALLOCATE_BUFFER = 0x100;
constexpr std::uint32_t FORMAT_MESSAGE_IGNORE_INSERTS = 0x200;
constexpr std::uint32_t FORMAT_MESSAGE_FROM_HMODULE = 0x800;
constexpr std::uint32_t CP_UTF8 = 65001;

/// The value of `MEMORY_BASIC_INFORMATION::Type` for memory of a loaded image.
constexpr std::uint32_t MEM_IMAGE = 0x1000000;

/// A description of the memory around one address. 64-bit systems have another field, not used here,
/// in the gap before `RegionSize`.
struct MEMORY_BASIC_INFORMATION {
    void* BaseAddress;
    void* AllocationBase; ///< the module that holds the address, if `Type` is `MEM_IMAGE`
    std::uint32_t AllocationProtect;
    std::size_t RegionSize;
    std::uint32_t State;
    std::uint32_t Protect;
    std::uint32_t Type;
};

/// Writes a description of the memory at `address` to `information`, which has `size` bytes.
///
/// @return the bytes written; 0 if the address is in no memory that the platform can describe, and
///         `information` is unspecified then
std::size_t VirtualQuery(const void* address, MEMORY_BASIC_INFORMATION* information,
                         std::size_t size) noexcept;

/// Fetches the text of one message, unexpanded, from the message table of `module`.
///
/// @param flags       `FORMAT_MESSAGE_ALLOCATE_BUFFER`, `FORMAT_MESSAGE_IGNORE_INSERTS` and
///                    `FORMAT_MESSAGE_FROM_HMODULE` together; no other combination is supported
/// @param module      a module found by `VirtualQuery`, still loaded
/// @param messageId   the whole identifier
/// @param languageId  the language of the text; no other is searched
/// @param buffer      the address of a `char16_t*`, passed as if it were the buffer itself; the
///                    pointer is set to a new NUL-terminated text, to be released by `LocalFree`
/// @param size        0
/// @param arguments   null
/// @return the number of UTF-16 units of the text without its terminator; 0 if the module has no
///         such message, if the message is empty, and if memory runs out
std::uint32_t FormatMessageW(std::uint32_t flags, HMODULE module, std::uint32_t messageId,
                             std::uint32_t languageId, char16_t* buffer, std::uint32_t size,
                             void* arguments) noexcept;

/// Converts `count` units of UTF-16 at `text` to the code page `CP_UTF8`, without a terminator.
///
/// An unpaired surrogate becomes U+FFFD.
///
/// @param size  the bytes at `output`; 0, with a null `output`, queries the length
/// @return the bytes written or required; 0 if `count` is not positive or `output` is too short
int WideCharToMultiByte(std::uint32_t codePage, std::uint32_t flags, const char16_t* text,
                        int count, char* output, int size, const char* defaultCharacter,
                        bool* usedDefaultCharacter) noexcept;

/// Releases what `FormatMessageW` allocated; null is allowed.
void LocalFree(void* memory) noexcept;

} // namespace zem::msglib::platform
