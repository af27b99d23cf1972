#pragma once

#include "platform/portable/Bytes.h"
#include "platform/portable/TableReader.h"

#include <cstddef>
#include <cstdint>

namespace zem::msglib::platform {

/// Finds a message in the notes of one note segment.
///
/// A note of the name "zem.msglib" and the type 0x4d544231 holds the table of one language:
///
///     language size table padding             u32, u32, `size` bytes
///
/// Other notes are passed over. Where several notes have the language, the first that has the
/// message counts.
///
/// @param notes      the segment, whatever it holds
/// @param alignment  of the segment, as its program header tells it
MessageText findInNotes(Bytes notes, std::size_t alignment, std::uint32_t languageId,
                        std::uint32_t messageId) noexcept;

} // namespace zem::msglib::platform
