#pragma once

#include <cstddef>
#include <cstdint>

/// The numbers in the layout of message tables, which `TableReader` describes, and of the notes
/// that contain them in ELF modules, which `findInNotes` describes. Sizes are in bytes.
namespace zem::msglib::platform::layout {

constexpr std::size_t countSize = 4;
constexpr std::size_t blockSize = 12;
constexpr std::size_t entryHeaderSize = 4;
constexpr std::uint16_t utf16Flag = 1;

/// The name of a note, whose size includes the terminator.
constexpr char noteName[] = "zem.msglib";
constexpr std::uint32_t noteType = 0x4d544231;

/// Language and size, which come before the table in a note.
constexpr std::size_t tableHeaderSize = 8;

} // namespace zem::msglib::platform::layout
