#pragma once

#include "platform/portable/Bytes.h"
#include "platform/portable/TableReader.h"

#include <cstddef>
#include <cstdint>

namespace zem::msglib::platform {

/// Finds a message in the notes of one note segment.
///
/// A note with the name "zem.msglib" and the type 0x4d544231 contains the table of one language:
///
///     language size table padding             u32, u32, `size` bytes
///
/// Other notes are skipped. Of several notes with the language, the first that contains the message
/// counts.
///
/// @param notes      the bytes of the segment, which may be damaged
/// @param alignment  the alignment in the segment's program header
MessageText findInNotes(Bytes notes, std::size_t alignment, std::uint32_t languageId,
                        std::uint32_t messageId) noexcept;

} // namespace zem::msglib::platform
