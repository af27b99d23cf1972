#include "platform/portable/TableReader.h"

#include <algorithm>

namespace zem::msglib::platform {

namespace {

constexpr std::size_t countSize = 4;
constexpr std::size_t blockSize = 12;
constexpr std::size_t entryHeaderSize = 4;

constexpr std::uint16_t utf16Flag = 1;

} // namespace

MessageText::MessageText(Bytes bytes, std::size_t unitBytes) noexcept
    : bytes_(bytes),
      unitBytes_(unitBytes) {
    const std::size_t limit = bytes.size() / unitBytes;
    while (length_ < limit && unitAt(length_) != 0) {
        ++length_;
    }
}

void MessageText::copyTo(char16_t* units) const noexcept {
    for (std::size_t index = 0; index < length_; ++index) {
        units[index] = unitAt(index);
    }
}

std::optional<MessageText> TableReader::find(std::uint32_t messageId) const noexcept {
    const std::size_t block = blockFor(messageId);
    const std::uint32_t lowest = table_.u32(block);
    if (!table_.holds(block, blockSize) || messageId < lowest) {
        return std::nullopt;
    }
    return textAt(table_.u32(block + 8), messageId - lowest);
}

/// Returns the offset of the first block that ends at or behind `messageId`; the table's size if
/// none does.
std::size_t TableReader::blockFor(std::uint32_t messageId) const noexcept {
    const std::size_t room =
        table_.holds(0, countSize) ? (table_.size() - countSize) / blockSize : 0;
    const std::size_t blocks = std::min<std::size_t>(table_.u32(0), room);
    std::size_t first = 0;
    std::size_t last = blocks;
    while (first < last) {
        const std::size_t middle = first + (last - first) / 2;
        if (table_.u32(countSize + middle * blockSize + 4) < messageId) {
            first = middle + 1;
        } else {
            last = middle;
        }
    }
    return first < blocks ? countSize + first * blockSize : table_.size();
}

std::optional<MessageText> TableReader::textAt(std::size_t offset,
                                               std::uint32_t entriesToSkip) const noexcept {
    std::size_t length = table_.u16(offset);
    for (; entriesToSkip > 0; --entriesToSkip) {
        if (length < entryHeaderSize) {
            return std::nullopt;
        }
        offset += length;
        length = table_.u16(offset);
    }
    const std::uint16_t flags = table_.u16(offset + 2);
    if (length < entryHeaderSize || flags > utf16Flag) {
        return std::nullopt;
    }
    const Bytes bytes = table_.part(offset + entryHeaderSize, length - entryHeaderSize);
    const MessageText text(bytes, flags == utf16Flag ? 2 : 1);
    return text.length() > 0 ? std::optional(text) : std::nullopt;
}

} // namespace zem::msglib::platform
