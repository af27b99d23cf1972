#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// The numbers in the layout of message tables, which `TableReader` describes, and of the notes
/// that contain them in ELF modules, which `findInNotes` describes. Sizes are in bytes.
namespace zem::msglib::platform::layout {

constexpr std::size_t countSize = 4;
constexpr std::size_t blockSize = 12;
constexpr std::size_t entryHeaderSize = 4;
constexpr std::uint16_t utf16Flag = 1;

/// The name of a note, with its terminator.
constexpr std::string_view noteName{"zem.msglib", 11};
constexpr std::uint32_t noteType = 0x4d544231;
constexpr std::size_t noteHeaderSize = 8;

} // namespace zem::msglib::platform::layout
