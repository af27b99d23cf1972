#include "platform/portable/NoteReader.h"
#include "platform/portable/TableReader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace zem::msglib::platform {
namespace {

using Data = std::vector<unsigned char>;

void append(Data& data, std::size_t value, std::size_t width) {
    for (std::size_t index = 0; index < width; ++index) {
        data.push_back(static_cast<unsigned char>(value >> (8 * index) & 0xFF));
    }
}

/// One block, with the texts of the identifiers from `lowest` on.
struct Block {
    std::uint32_t lowest;
    std::vector<std::u16string> texts;
};

void appendEntry(Data& data, const std::u16string& text) {
    append(data, (4 + 2 * text.size() + 2 + 3) / 4 * 4, 2);
    append(data, 1, 2);
    for (const char16_t unit : text) {
        append(data, unit, 2);
    }
    data.resize((data.size() + 2 + 3) / 4 * 4);
}

Data makeTable(const std::vector<Block>& blocks) {
    Data head;
    Data entries;
    append(head, blocks.size(), 4);
    for (const Block& block : blocks) {
        append(head, block.lowest, 4);
        append(head, block.lowest + block.texts.size() - 1, 4);
        append(head, 4 + 12 * blocks.size() + entries.size(), 4);
        for (const std::u16string& text : block.texts) {
            appendEntry(entries, text);
        }
    }
    head.insert(head.end(), entries.begin(), entries.end());
    return head;
}

const std::vector<Block> sampleBlocks = {{1, {u"one\r\n", u"two", u"", u"four"}},
                                         {0x00050001, {u"café \U0001F600"}},
                                         {0xC0050001, {u"x"}}};

std::u16string toString(const std::optional<MessageText>& text) {
    std::u16string result(text ? text->length() : 0, u'\0');
    if (text) {
        text->copyTo(result.data());
    }
    return result;
}

/// Returns a heap block of exactly the data's size, so that a sanitizer sees each read beyond it.
std::unique_ptr<unsigned char[]> exactCopy(const Data& data) {
    std::unique_ptr<unsigned char[]> copy(new unsigned char[data.size()]);
    std::copy(data.begin(), data.end(), copy.get());
    return copy;
}

/// Returns the text of a message, empty if there is none.
std::u16string find(const Data& data, std::uint32_t id) {
    const auto copy = exactCopy(data);
    const auto text = TableReader({copy.get(), data.size()}).find(id);
    EXPECT_TRUE(!text || text->length() > 0);
    return toString(text);
}

std::vector<std::uint32_t> interestingIds() {
    return {0, 1, 2, 3, 4, 5, 0x00050000, 0x00050001, 0x00050002, 0xC0050001, 0xFFFFFFFF};
}

TEST(TableReaderTest, FindsWhatIsThere) {
    const Data table = makeTable(sampleBlocks);
    const std::vector<std::u16string> texts = {u"", u"one\r\n",         u"two", u"",  u"four", u"",
                                               u"", u"café \U0001F600", u"",    u"x", u""};
    const auto ids = interestingIds();
    for (std::size_t index = 0; index < ids.size(); ++index) {
        EXPECT_EQ(find(table, ids[index]), texts[index]) << ids[index];
    }
}

TEST(TableReaderTest, ReadsEntriesOfEveryForm) {
    const struct {
        int line;
        Data entry;
        std::u16string text;
    } rows[] = {
        {__LINE__, {8, 0, 1, 0, 'a', 0, 'b', 0}, u"ab"},
        {__LINE__, {8, 0, 1, 0, 'a', 0, 0, 0}, u"a"},
        {__LINE__, {12, 0, 1, 0, 'a', 0, 'b', 0, 0, 0, 0, 0}, u"ab"},
        {__LINE__, {12, 0, 1, 0, 'a', 0, 0, 0, 'b', 0, 0, 0}, u"a"},
        {__LINE__, {7, 0, 1, 0, 'a', 0, 'b', 0}, u"a"},
        {__LINE__, {8, 0, 0, 0, 'a', 0xE9, 0xFF, 0}, u"a\u00E9\u00FF"},
        {__LINE__, {6, 0, 1, 0, 0x3D, 0xD8}, std::u16string(1, 0xD83D)},
        {__LINE__, {8, 0, 1, 0, 0, 0, 'b', 0}, u""},
        {__LINE__, {4, 0, 1, 0, 'a', 0}, u""},
        {__LINE__, {3, 0, 1, 0, 'a', 0}, u""},
        {__LINE__, {0, 0, 1, 0, 'a', 0}, u""},
        {__LINE__, {8, 0, 2, 0, 'a', 0, 'b', 0}, u""},
        {__LINE__, {9, 0, 1, 0, 'a', 0, 'b', 0}, u""},
        {__LINE__, {0xFF, 0xFF, 1, 0, 'a', 0}, u""},
        {__LINE__, {8, 0, 1}, u""},
        {__LINE__, {8}, u""},
    };
    for (const auto& row : rows) {
        Data table = {1, 0, 0, 0, 7, 0, 0, 0, 7, 0, 0, 0, 16, 0, 0, 0};
        table.insert(table.end(), row.entry.begin(), row.entry.end());
        EXPECT_EQ(find(table, 7), row.text) << "row of line " << row.line;
    }
}

TEST(TableReaderTest, SurvivesTruncation) {
    const Data table = makeTable(sampleBlocks);
    for (std::size_t size = 0; size < table.size(); ++size) {
        const Data truncated(table.begin(), table.begin() + static_cast<std::ptrdiff_t>(size));
        for (const std::uint32_t id : interestingIds()) {
            const auto text = find(truncated, id);
            EXPECT_TRUE(text.empty() || text == find(table, id)) << size << ' ' << id;
        }
    }
}

TEST(TableReaderTest, SurvivesEveryChangeOfOneByte) {
    Data table = makeTable(sampleBlocks);
    for (unsigned char& byte : table) {
        const unsigned char original = byte;
        for (int value = 0; value < 256; ++value) {
            byte = static_cast<unsigned char>(value);
            for (const std::uint32_t id : interestingIds()) {
                EXPECT_LE(find(table, id).size(), table.size());
            }
        }
        byte = original;
    }
}

TEST(TableReaderTest, SurvivesBlocksThatLie) {
    const struct {
        int line;
        std::uint32_t id;
        std::vector<std::uint32_t> words;
    } rows[] = {
        {__LINE__, 0xFFFFFFFF, {0xFFFFFFFF, 0, 0xFFFFFFFF, 0}}, // offset of the count
        {__LINE__,
         0xFFFFFFFF,
         {1, 0, 0xFFFFFFFF, 16, 0x00010004, 0x00010004}}, // entries end too soon
        {__LINE__, 0, {1, 0, 0xFFFFFFFF, 0xFFFFFFFF}},    // offset far outside
        {__LINE__, 0xFFFFFFFF, {1, 0, 0xFFFFFFFF, 0xFFFFFFFC}},
        {__LINE__, 0xFFFFFFFF, {1, 0, 0xFFFFFFFF, 16, 0}},    // an entry of no length
        {__LINE__, 5, {1, 9, 3, 16, 0x00010008, 0x00410041}}, // ends before it begins
        {__LINE__, 7, {2, 5, 9, 28, 5, 9, 28, 0x00010004}},   // overlapping
        {__LINE__, 1, {0, 1, 1, 16, 0x00010008, 0x00410041}}, // no block counted
    };
    for (const auto& row : rows) {
        Data table;
        for (const std::uint32_t word : row.words) {
            append(table, word, 4);
        }
        EXPECT_EQ(find(table, row.id), u"") << "row of line " << row.line;
    }
}

struct Note {
    std::string name;
    std::uint32_t type;
    std::uint32_t language;
    Data table;
};

const std::string tableName("zem.msglib\0", 11);
constexpr std::uint32_t tableType = 0x4d544231;

Data makeNotes(const std::vector<Note>& notes, std::size_t alignment) {
    Data data;
    const auto pad = [&] { data.resize((data.size() + alignment - 1) / alignment * alignment); };
    for (const Note& note : notes) {
        append(data, note.name.size(), 4);
        append(data, 8 + note.table.size(), 4);
        append(data, note.type, 4);
        data.insert(data.end(), note.name.begin(), note.name.end());
        pad();
        append(data, note.language, 4);
        append(data, note.table.size(), 4);
        data.insert(data.end(), note.table.begin(), note.table.end());
        pad();
    }
    return data;
}

std::u16string lookUp(const Data& data, std::size_t alignment, std::uint32_t language) {
    const auto copy = exactCopy(data);
    return toString(findInNotes(Bytes(copy.get(), data.size()), alignment, language, 1));
}

std::vector<Note> sampleNotes() {
    return {{"GNU", 3, 0x409, makeTable({{1, {u"other name"}}})},
            {tableName, tableType + 1, 0x409, makeTable({{1, {u"other type"}}})},
            {tableName, tableType, 0x407, makeTable({{1, {u"eins"}}})},
            {tableName, tableType, 0x409, makeTable({{2, {u"two"}}})},
            {tableName, tableType, 0x409, makeTable({{1, {u""}}})},
            {tableName, tableType, 0x409, makeTable({{1, {u"first"}}})},
            {tableName, tableType, 0x409, makeTable({{1, {u"second"}}})}};
}

TEST(NoteReaderTest, TakesTheFirstNoteThatHasTheMessage) {
    for (const std::size_t alignment : {4U, 8U}) {
        const Data notes = makeNotes(sampleNotes(), alignment);
        EXPECT_EQ(lookUp(notes, alignment, 0x409), u"first") << alignment;
        EXPECT_EQ(lookUp(notes, alignment, 0x407), u"eins") << alignment;
        EXPECT_EQ(lookUp(notes, alignment, 0x40C), u"") << alignment;
    }
}

TEST(NoteReaderTest, SurvivesTruncationAndEveryChangeOfOneByte) {
    Data notes = makeNotes(sampleNotes(), 8);
    for (std::size_t size = 0; size < notes.size(); ++size) {
        const Data truncated(notes.begin(), notes.begin() + static_cast<std::ptrdiff_t>(size));
        const auto text = lookUp(truncated, 8, 0x409);
        EXPECT_TRUE(text.empty() || text == u"first") << size;
    }
    for (unsigned char& byte : notes) {
        const unsigned char original = byte;
        for (int value = 0; value < 256; ++value) {
            byte = static_cast<unsigned char>(value);
            EXPECT_LE(lookUp(notes, value % 2 == 0 ? 4 : 8, 0x409).size(), notes.size());
        }
        byte = original;
    }
}

} // namespace
} // namespace zem::msglib::platform
