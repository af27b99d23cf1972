#include "MessageTableFile.h"

#include <cstddef>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <vector>

namespace zem::msglib::tool {

namespace {

constexpr std::size_t countSize = 4;
constexpr std::size_t blockSize = 12;
constexpr std::size_t entryHeaderSize = 4;
constexpr std::uint32_t utf16Flag = 1;
constexpr std::size_t entriesPerBlock = 8;

struct Block {
    std::uint32_t lowest;
    std::uint32_t highest;
    std::size_t offset;
};

/// Reads `width` bytes in little-endian order; std::out_of_range where the file ends before.
std::uint32_t numberAt(const std::string& bytes, std::size_t offset, std::size_t width) {
    std::uint32_t value = 0;
    for (std::size_t index = width; index-- > 0;) {
        value = value << 8 | static_cast<unsigned char>(bytes.at(offset + index));
    }
    return value;
}

void append(std::string& bytes, std::size_t value, std::size_t width) {
    for (std::size_t index = 0; index < width; ++index) {
        bytes += static_cast<char>(value >> (8 * index) & 0xFF);
    }
}

std::u16string textAt(const std::string& bytes, std::size_t offset, std::size_t length) {
    std::u16string text;
    for (std::size_t index = 0; index + 1 < length; index += 2) {
        text += static_cast<char16_t>(numberAt(bytes, offset + index, 2));
    }
    text.erase(text.find_last_not_of(u'\0') + 1);
    return text;
}

/// Adds the entries of one block to `table`.
void readBlock(const std::string& bytes, const Block& block, MessageTable& table) {
    std::size_t offset = block.offset;
    for (std::uint64_t id = block.lowest; id <= block.highest; ++id) {
        const std::size_t length = numberAt(bytes, offset, 2);
        if (length < entryHeaderSize || numberAt(bytes, offset + 2, 2) != utf16Flag) {
            throw std::out_of_range("entry");
        }
        table[static_cast<std::uint32_t>(id)] =
            textAt(bytes, offset + entryHeaderSize, length - entryHeaderSize);
        offset += length;
    }
}

MessageTable parseTable(const std::string& bytes) {
    MessageTable table;
    const std::size_t count = numberAt(bytes, 0, 4);
    for (std::size_t index = 0; index < count; ++index) {
        const std::size_t at = countSize + index * blockSize;
        readBlock(bytes,
                  {numberAt(bytes, at, 4), numberAt(bytes, at + 4, 4), numberAt(bytes, at + 8, 4)},
                  table);
    }
    return table;
}

std::string entryBytes(const std::u16string& text) {
    const std::size_t unpadded = entryHeaderSize + 2 * (text.size() + 1);
    const std::size_t length = (unpadded + 3) / 4 * 4;
    std::string bytes;
    append(bytes, length, 2);
    append(bytes, utf16Flag, 2);
    for (const char16_t unit : text) {
        append(bytes, unit, 2);
    }
    bytes.resize(length);
    return bytes;
}

} // namespace

MessageTable readTable(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(in), {}};
    try {
        return parseTable(bytes);
    } catch (const std::out_of_range&) {
        throw std::runtime_error(path + ": not a compiled message table");
    }
}

std::string tableBytes(const MessageTable& table) {
    std::vector<Block> blocks;
    std::string entries;
    for (const auto& [id, text] : table) {
        const bool follows = !blocks.empty() && id - blocks.back().highest == 1 &&
                             id - blocks.back().lowest < entriesPerBlock;
        if (follows) {
            blocks.back().highest = id;
        } else {
            blocks.push_back({id, id, entries.size()});
        }
        entries += entryBytes(text);
    }
    const std::size_t entriesAt = countSize + blocks.size() * blockSize;
    std::string bytes;
    append(bytes, blocks.size(), 4);
    for (const Block& block : blocks) {
        append(bytes, block.lowest, 4);
        append(bytes, block.highest, 4);
        append(bytes, entriesAt + block.offset, 4);
    }
    return bytes + entries;
}

} // namespace zem::msglib::tool
