#include "tool/generated/MessageTable.h"

#include "tool/text/Unicode.h"

#include "platform/portable/TableLayout.h"

#include <algorithm>
#include <string_view>
#include <utility>

// Catalogues go in, one table for each language comes out: the number of blocks, the blocks, and
// the entries. The texts of a language are sorted by identifier. A block is a run of consecutive
// identifiers of limited length. An entry has a header, the text as UTF-16 and a terminator.

namespace zem::msglib::tool {

namespace {

using namespace platform::layout;

constexpr std::size_t entryAlignment = 4;

/// A run of consecutive identifiers, and the offset of the first entry.
struct Block {
    std::uint32_t lowest;
    std::uint32_t highest;
    std::size_t offset;
};

/// Appends a number of `width` bytes.
void append(std::string& bytes, std::size_t value, std::size_t width) {
    for (std::size_t index = 0; index < width; ++index) {
        bytes += static_cast<char>(value >> (8 * index) & 0xFF);
    }
}

/// Appends a text as UTF-16, each line with CR LF.
void appendText(std::string& bytes, std::string_view text) {
    while (!text.empty()) {
        const char32_t character = takeCharacter(text);
        if (character == '\n') {
            append(bytes, '\r', 2);
        }
        if (character > 0xFFFF) {
            append(bytes, 0xD7C0 + (character >> 10), 2);
            append(bytes, 0xDC00 | (character & 0x3FF), 2);
        } else {
            append(bytes, character, 2);
        }
    }
}

void appendEntry(std::string& bytes, std::string_view text) {
    const std::size_t begin = bytes.size();
    append(bytes, 0, 2); // the length, written below
    append(bytes, utf16Flag, 2);
    appendText(bytes, text);
    append(bytes, 0, 2);
    bytes.resize((bytes.size() + entryAlignment - 1) / entryAlignment * entryAlignment);
    const std::size_t length = bytes.size() - begin;
    bytes[begin] = static_cast<char>(length & 0xFF);
    bytes[begin + 1] = static_cast<char>(length >> 8);
}

using Entries = std::vector<std::pair<std::uint32_t, std::string_view>>;

std::string tableOf(Entries entries, std::size_t entriesPerBlock) {
    std::sort(entries.begin(), entries.end());
    std::vector<Block> blocks;
    std::string texts;
    for (const auto& [id, text] : entries) {
        const bool follows = !blocks.empty() && id - blocks.back().highest == 1 &&
                             id - blocks.back().lowest < entriesPerBlock;
        if (follows) {
            blocks.back().highest = id;
        } else {
            blocks.push_back({id, id, texts.size()});
        }
        appendEntry(texts, text);
    }
    const std::size_t entriesAt = countSize + blocks.size() * blockSize;
    std::string bytes;
    bytes.reserve(entriesAt + texts.size());
    append(bytes, blocks.size(), 4);
    for (const Block& block : blocks) {
        append(bytes, block.lowest, 4);
        append(bytes, block.highest, 4);
        append(bytes, entriesAt + block.offset, 4);
    }
    bytes += texts;
    return bytes;
}

} // namespace

std::map<std::uint32_t, std::string> compileTables(const std::vector<const Catalogue*>& catalogues,
                                                   std::size_t entriesPerBlock) {
    std::map<std::uint32_t, Entries> entries;
    for (const Catalogue* const catalogue : catalogues) {
        for (const Message& message : catalogue->messages) {
            for (const MessageText& text : message.texts) {
                entries[text.language].emplace_back(message.id, text.pattern.text());
            }
        }
    }
    std::map<std::uint32_t, std::string> tables;
    for (auto& [language, ofLanguage] : entries) {
        tables[language] = tableOf(std::move(ofLanguage), entriesPerBlock);
    }
    return tables;
}

} // namespace zem::msglib::tool
