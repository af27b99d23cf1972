#pragma once

#include "platform/portable/Bytes.h"

#include <cstddef>
#include <cstdint>

namespace zem::msglib::platform {

/// The text of one message inside its table, as UTF-16 units, or no text.
///
/// It ends before the first NUL or at the end of its entry. The table must outlive it. It is small
/// enough to be returned in registers.
class MessageText {
public:
    /// Makes an empty text, which means that there is none.
    constexpr MessageText() noexcept = default;

    /// @param bytes      the text of an entry without its header, at most 65,535 bytes
    /// @param unitBytes  2 for UTF-16, 1 for bytes that are code points themselves
    MessageText(Bytes bytes, std::uint32_t unitBytes) noexcept;

    /// Returns whether there is no text. A message without any unit counts as missing.
    bool isEmpty() const noexcept { return length_ == 0; }

    /// Returns the number of units.
    std::size_t length() const noexcept { return length_; }

    /// Writes all units to `units`, without a terminator.
    void copyTo(char16_t* units) const noexcept;

private:
    char16_t unitAt(std::size_t index) const noexcept {
        const unsigned char* at = data_ + index * unitBytes_;
        return static_cast<char16_t>(unitBytes_ == 2 ? at[0] | at[1] << 8 : at[0]);
    }

    const unsigned char* data_ = nullptr;
    std::uint32_t unitBytes_ = 0;
    std::uint32_t length_ = 0;
};

/// Reads a compiled message table.
///
///     table = count block* entry*      count: u32
///     block = lowest highest offset    u32 each; blocks ascend
///     entry = length flags text        u16 each; flags 1 means UTF-16
///
/// A block covers the identifiers from lowest to highest. Its offset counts from the first byte of
/// the table to the entry of the lowest; the other entries follow without a gap. The length of an
/// entry includes its header.
///
/// Any bytes are safe: a damaged table lacks messages or has wrong texts, but no byte outside it is
/// read.
class TableReader {
public:
    explicit TableReader(Bytes table) noexcept : table_(table) {}

    /// Returns the text of `messageId`, or no text.
    ///
    /// Takes time logarithmic in the number of blocks and linear in the entries of one block.
    MessageText find(std::uint32_t messageId) const noexcept;

private:
    std::size_t blockFor(std::uint32_t messageId) const noexcept;
    MessageText textAt(std::size_t offset, std::uint32_t entriesToSkip) const noexcept;

    Bytes table_;
};

} // namespace zem::msglib::platform
