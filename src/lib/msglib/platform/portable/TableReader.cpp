#include "platform/portable/TableReader.h"

#include "platform/portable/TableLayout.h"

#include <boost/endian/conversion.hpp>

#include <algorithm>
#include <cstring>

// `TableReader` finds a message by a binary search over the blocks and a walk over the entries
// inside one. `MessageText` measures the text up to its first NUL, eight units at a time, and
// copies it. Both stay inside bounds that `Bytes` has checked.

namespace zem::msglib::platform {

namespace {

using namespace layout;

constexpr std::uint32_t unitsAtOnce = 8;

/// Returns a word that differs from 0 if one of the four units in `units` is NUL, in either byte
/// order. After "Determine if a word has a zero byte" of Sean Anderson's Bit Twiddling Hacks.
constexpr std::uint64_t nulUnits(std::uint64_t units) noexcept {
    constexpr std::uint64_t everyUnit = 0x0001'0001'0001'0001;
    return (units - everyUnit) & ~units & everyUnit << 15;
}

/// Returns whether one of the eight units from `at` on is NUL.
bool hasNulUnit(const unsigned char* at) noexcept {
    std::uint64_t words[2];
    std::memcpy(words, at, sizeof words);
    return (nulUnits(words[0]) | nulUnits(words[1])) != 0;
}

} // namespace

MessageText::MessageText(Bytes bytes, std::uint32_t unitBytes) noexcept
    : data_(bytes.data()),
      unitBytes_(unitBytes) {
    const auto limit = static_cast<std::uint32_t>(bytes.size() / unitBytes);
    while (unitBytes == 2 && limit - length_ >= unitsAtOnce && !hasNulUnit(data_ + length_ * 2)) {
        length_ += unitsAtOnce;
    }
    while (length_ < limit && unitAt(length_) != 0) {
        ++length_;
    }
}

void MessageText::copyTo(char16_t* units) const noexcept {
    if (unitBytes_ == 1) {
        std::copy_n(data_, length_, units);
        return;
    }
    std::copy_n(data_, length_ * sizeof *units, reinterpret_cast<unsigned char*>(units));
    std::for_each(units, units + length_, boost::endian::little_to_native_inplace<char16_t>);
}

MessageText TableReader::find(std::uint32_t messageId) const noexcept {
    const std::size_t block = blockFor(messageId);
    const std::uint32_t lowest = table_.u32(block);
    if (!table_.holds(block, blockSize) || messageId < lowest) {
        return {};
    }
    return textAt(table_.u32(block + 8), messageId - lowest);
}

/// Returns the offset of the first block that ends at or after `messageId`; the table's size if
/// there is none. The search has no branch that the processor could predict wrongly.
std::size_t TableReader::blockFor(std::uint32_t messageId) const noexcept {
    const std::size_t capacity =
        table_.holds(0, countSize) ? (table_.size() - countSize) / blockSize : 0;
    const std::size_t blocks = std::min<std::size_t>(table_.u32(0), capacity);
    const std::size_t end = countSize + blocks * blockSize;
    std::size_t first = countSize;
    for (std::size_t count = blocks; count > 0;) {
        const std::size_t half = (count + 1) / 2;
        const std::size_t next = first + half * blockSize;
        const bool endsBefore = table_.u32(next - blockSize + 4) < messageId;
        first = endsBefore ? next : first;
        count -= half;
    }
    return first < end ? first : table_.size();
}

MessageText TableReader::textAt(std::size_t offset, std::uint32_t entriesToSkip) const noexcept {
    std::size_t length = table_.u16(offset);
    for (; entriesToSkip > 0; --entriesToSkip) {
        if (length < entryHeaderSize) {
            return {};
        }
        offset += length;
        length = table_.u16(offset);
    }
    const std::uint16_t flags = table_.u16(offset + 2);
    if (length < entryHeaderSize || flags > utf16Flag) {
        return {};
    }
    const Bytes bytes = table_.part(offset + entryHeaderSize, length - entryHeaderSize);
    return {bytes, flags == utf16Flag ? 2U : 1U};
}

} // namespace zem::msglib::platform
