#include "tool/table/TableDecoder.h"

#include "tool/catalogue/Catalogue.h"

#include "platform/MessageTables.h"
#include "platform/portable/TableLayout.h"
#include "platform/portable/TableReader.h"

// The bytes of a table go in, its texts come out. The blocks are read in order, then the entries of
// each block. Every offset and length is checked before it is used, and the total length of entries
// is bounded by the table, so the time is linear.

namespace zem::msglib::tool {

namespace {

using namespace platform::layout;
using platform::Bytes;

std::string utf8Of(const platform::MessageText& text) {
    std::u16string units(text.length(), u'\0');
    text.copyTo(units.data());
    const auto convert = [&units](char* output, int size) {
        return platform::WideCharToMultiByte(platform::CP_UTF8, 0, units.data(),
                                             static_cast<int>(units.size()), output, size, nullptr,
                                             nullptr);
    };
    std::string utf8(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
    convert(utf8.data(), static_cast<int>(utf8.size()));
    return utf8;
}

class Decoder {
public:
    explicit Decoder(Bytes table) : table_(table) {}

    TableTexts decode() {
        if (!mayBeTable(table_)) {
            throw BrokenTable("it is too short for the number of its blocks");
        }
        const std::size_t end = countSize + table_.u32(0) * blockSize;
        for (std::size_t block = countSize; block < end; block += blockSize) {
            decodeBlock(block, end);
        }
        return std::move(texts_);
    }

private:
    void decodeBlock(std::size_t block, std::size_t end) {
        const std::uint64_t lowest = table_.u32(block);
        const std::uint64_t highest = table_.u32(block + 4);
        if (lowest > highest || lowest < next_) {
            throw BrokenTable("the block that begins with " +
                              hexadecimal(static_cast<std::uint32_t>(lowest)) +
                              " is not in ascending order");
        }
        next_ = highest + 1;
        std::size_t offset = table_.u32(block + 8);
        for (std::uint64_t id = lowest; id <= highest; ++id) {
            offset += decodeEntry(static_cast<std::uint32_t>(id), offset, end);
        }
    }

    /// Returns the length of the entry.
    std::size_t decodeEntry(std::uint32_t id, std::size_t offset, std::size_t end) {
        const std::size_t length = table_.u16(offset);
        const std::uint16_t flags = table_.u16(offset + 2);
        const auto refuse = [id](const char* reason) {
            throw BrokenTable("its entry of " + hexadecimal(id) + reason);
        };
        if (offset < end || length < entryHeaderSize || !table_.holds(offset, length)) {
            refuse(" lies outside of it");
        }
        if (flags > utf16Flag || (flags == utf16Flag && length % 2 != 0)) {
            refuse(" has a form that is not known");
        }
        taken_ += length;
        if (taken_ > table_.size()) {
            refuse(" overlaps others");
        }
        const platform::MessageText text(
            table_.part(offset + entryHeaderSize, length - entryHeaderSize),
            flags == utf16Flag ? 2U : 1U);
        if (!text.isEmpty()) {
            texts_.emplace_hint(texts_.end(), id, utf8Of(text));
        }
        return length;
    }

    Bytes table_;
    TableTexts texts_;
    std::uint64_t next_ = 0; ///< the least identifier that may come next
    std::size_t taken_ = 0;  ///< bytes of all entries so far
};

} // namespace

bool mayBeTable(Bytes bytes) noexcept {
    return bytes.size() >= countSize && bytes.u32(0) <= (bytes.size() - countSize) / blockSize;
}

TableTexts decodeTable(Bytes table) {
    return Decoder(table).decode();
}

} // namespace zem::msglib::tool
