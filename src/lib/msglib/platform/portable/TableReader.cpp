#include "platform/portable/TableReader.h"

#include <boost/endian/conversion.hpp>

#include <algorithm>
#include <cstring>

namespace zem::msglib::platform {

namespace {

constexpr std::size_t countSize = 4;
constexpr std::size_t blockSize = 12;
constexpr std::size_t entryHeaderSize = 4;

constexpr std::uint16_t utf16Flag = 1;

/// Tells whether one of the four units from `at` on is NUL, in either byte order. After "Determine
/// if a word has a zero byte" of Sean Anderson's Bit Twiddling Hacks.
bool hasNulUnit(const unsigned char* at) noexcept {
    constexpr std::uint64_t everyUnit = 0x0001000100010001;
    std::uint64_t units = 0;
    std::memcpy(&units, at, sizeof units);
    return ((units - everyUnit) & ~units & everyUnit << 15) != 0;
}

} // namespace

MessageText::MessageText(Bytes bytes, std::size_t unitBytes) noexcept
    : bytes_(bytes),
      unitBytes_(unitBytes) {
    const std::size_t limit = bytes.size() / unitBytes;
    while (unitBytes == 2 && limit - length_ >= 4 && !hasNulUnit(bytes.data() + length_ * 2)) {
        length_ += 4;
    }
    while (length_ < limit && unitAt(length_) != 0) {
        ++length_;
    }
}

void MessageText::copyTo(char16_t* units) const noexcept {
    if (unitBytes_ == 1) {
        std::copy_n(bytes_.data(), length_, units);
        return;
    }
    std::memcpy(units, bytes_.data(), length_ * sizeof *units);
    std::for_each(units, units + length_, boost::endian::little_to_native_inplace<char16_t>);
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
/// none does. The search halves without a branch that could be guessed wrong.
std::size_t TableReader::blockFor(std::uint32_t messageId) const noexcept {
    const std::size_t room =
        table_.holds(0, countSize) ? (table_.size() - countSize) / blockSize : 0;
    const std::size_t blocks = std::min<std::size_t>(table_.u32(0), room);
    const auto endsBefore = [this, messageId](std::size_t block) {
        return table_.u32(countSize + block * blockSize + 4) < messageId;
    };
    std::size_t first = 0;
    for (std::size_t count = blocks; count > 0;) {
        const std::size_t half = (count + 1) / 2;
        first += endsBefore(first + half - 1) ? half : 0;
        count -= half;
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
