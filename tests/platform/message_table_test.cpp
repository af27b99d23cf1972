#include "platform/portable/NoteReader.h"
#include "platform/portable/TableReader.h"

#include <gtest/gtest.h>

#include <sys/mman.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace zem::msglib::platform {
namespace {

using Data = std::vector<unsigned char>;

/// Copies the data to the end of mapped memory, so that every read beyond it faults.
Bytes atEndOfMemory(const Data& data) {
    constexpr std::size_t most = 4096;
    static unsigned char* const end = [] {
        void* const pages =
            ::mmap(nullptr, 2 * most, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        unsigned char* const second = static_cast<unsigned char*>(pages) + most;
        EXPECT_TRUE(pages != MAP_FAILED && ::mprotect(second, most, PROT_NONE) == 0);
        return second;
    }();
    EXPECT_LE(data.size(), most);
    return {std::copy(data.begin(), data.end(), end - data.size()) - data.size(), data.size()};
}

/// Returns units as a table has them, whose byte order is little-endian on every machine.
Data bytesOf(const std::vector<char16_t>& units) {
    Data data;
    for (const char16_t unit : units) {
        data.push_back(static_cast<unsigned char>(unit & 0xFF));
        data.push_back(static_cast<unsigned char>(unit >> 8));
    }
    return data;
}

// A table as the message compiler writes it. A block has the lowest and the highest identifier and
// the offset of its entries; an entry has its length in bytes, 1 for UTF-16, and the text.
const Data sampleTable = bytesOf({
    3,  0,                                                           // blocks
    1,  0,      3,    0,      40,   0,                               //
    1,  5,      1,    5,      80,   0,                               //
    1,  0xC005, 1,    0xC005, 100,  0,                               //
    16, 1,      u'o', u'n',   u'e', u'\r', u'\n', 0,                 //
    8,  1,      0,    0,                                             //
    16, 1,      u't', u'h',   u'r', u'e',  u'e',  0,                 //
    20, 1,      u'c', u'a',   u'f', u'é',  u' ',  0xD83D, 0xDE00, 0, //
    8,  1,      u'x', 0,                                             //
});

std::u16string textOf(const MessageText& text) {
    EXPECT_EQ(text.isEmpty(), text.length() == 0);
    std::u16string units(text.length(), u'\0');
    text.copyTo(units.data());
    return units;
}

/// Returns the text of a message, or an empty text if there is none.
std::u16string find(const Data& table, std::uint32_t id) {
    return textOf(TableReader(atEndOfMemory(table)).find(id));
}

/// Calls `check` with the data cut off at every position, with every value of each byte, and with
/// values near limits in every field of two or four bytes.
template <class Check>
void damage(const Data& data, const Check& check) {
    for (std::size_t size = 0; size < data.size(); ++size) {
        check(Data(data.begin(), data.begin() + static_cast<std::ptrdiff_t>(size)));
    }
    Data damaged = data;
    for (std::size_t at = 0; at < data.size(); ++at) {
        for (int value = 0; value < 256; ++value) {
            damaged[at] = static_cast<unsigned char>(value);
            check(damaged);
        }
        damaged[at] = data[at];
    }
    const auto size = static_cast<std::uint32_t>(data.size());
    for (const std::uint32_t end : {0U, size, size / 2, size / 12, 0x8000U, 0x80000000U}) {
        for (std::uint32_t value = end - 5; value != end + 6; ++value) {
            for (std::size_t at = 0; at < data.size(); at += 2) {
                const std::size_t width = at + 4 <= data.size() ? 4 : 2;
                for (std::size_t bytes = 2; bytes <= width; bytes += 2) {
                    std::memcpy(&damaged[at], &value, bytes);
                    check(damaged);
                    std::memcpy(&damaged[at], &data[at], bytes);
                }
            }
        }
    }
}

TEST(TableReader, FindsMessagesAndSurvivesDamage) {
    const std::pair<std::uint32_t, std::u16string> messages[] = {{0, u""},
                                                                 {1, u"one\r\n"},
                                                                 {2, u""},
                                                                 {3, u"three"},
                                                                 {4, u""},
                                                                 {0x00050000, u""},
                                                                 {0x00050001, u"café \U0001F600"},
                                                                 {0x00050002, u""},
                                                                 {0xC0050001, u"x"},
                                                                 {0xFFFFFFFF, u""}};
    for (const auto& message : messages) {
        const std::uint32_t id = message.first;
        SCOPED_TRACE(id);
        EXPECT_EQ(find(sampleTable, id), message.second);
        damage(sampleTable, [&](const Data& damaged) {
            const std::u16string text = find(damaged, id);
            const bool isCut = damaged.size() < sampleTable.size();
            EXPECT_TRUE(text.empty() || text == message.second || !isCut)
                << testing::PrintToString(text);
            EXPECT_LT(2 * text.size(), sampleTable.size());
        });
    }
}

TEST(TableReader, ReadsEntriesOfEveryForm) {
    const struct {
        int line;
        Data entry;
        std::u16string text;
    } rows[] = {
        {__LINE__, {8, 0, 1, 0, 'a', 0, 'b', 0}, u"ab"},
        {__LINE__, {8, 0, 1, 0, 'a', 0, 0, 0}, u"a"},
        {__LINE__, {12, 0, 1, 0, 'a', 0, 0, 0, 'b', 0, 0, 0}, u"a"},
        {__LINE__, {7, 0, 1, 0, 'a', 0, 'b', 0}, u"a"},
        {__LINE__, {8, 0, 0, 0, 'a', 0xE9, 0xFF, 0}, u"a\u00E9\u00FF"},
        {__LINE__, {6, 0, 1, 0, 0x3D, 0xD8}, std::u16string(1, 0xD83D)},
        {__LINE__, {8, 0, 1, 0, 0, 0, 'b', 0}, u""},
        {__LINE__, {4, 0, 1, 0, 'a', 0}, u""},
        {__LINE__, {3, 0, 1, 0, 'a', 0}, u""},
        {__LINE__, {8, 0, 2, 0, 'a', 0, 'b', 0}, u""},
        {__LINE__, {9, 0, 1, 0, 'a', 0, 'b', 0}, u""},
    };
    for (const auto& row : rows) {
        Data table = bytesOf({1, 0, 7, 0, 7, 0, 16, 0});
        table.insert(table.end(), row.entry.begin(), row.entry.end());
        EXPECT_EQ(find(table, 7), row.text) << "row of line " << row.line;
    }
}

void append(Data& data, std::uint32_t value) {
    data.resize(data.size() + sizeof value);
    std::memcpy(data.data() + data.size() - sizeof value, &value, sizeof value);
}

struct Note {
    std::string name;
    std::uint32_t type;
    std::uint32_t language;
    char16_t messageId, text; ///< the only message of the table
};

Data makeNotes(std::size_t alignment) {
    const std::string tableName("zem.msglib\0", 11);
    constexpr std::uint32_t tableType = 0x4d544231;
    const Note notes[] = {
        {"GNU", 3, 0x409, 1, u'n'},
        {tableName, tableType + 1, 0x409, 1, u't'},
        {tableName, tableType, 0x407, 1, u'g'},
        {tableName, tableType, 0x409, 2, u'2'},
        {tableName, tableType, 0x409, 1, u'\0'},
        {tableName, tableType, 0x409, 1, u'1'},
        {tableName, tableType, 0x409, 1, u's'},
    };
    Data data;
    const auto pad = [&] { data.resize((data.size() + alignment - 1) / alignment * alignment); };
    for (const Note& note : notes) {
        const Data table =
            bytesOf({1, 0, note.messageId, 0, note.messageId, 0, 16, 0, 8, 1, note.text, 0});
        append(data, static_cast<std::uint32_t>(note.name.size()));
        append(data, static_cast<std::uint32_t>(8 + table.size()));
        append(data, note.type);
        data.insert(data.end(), note.name.begin(), note.name.end());
        pad();
        append(data, note.language);
        append(data, static_cast<std::uint32_t>(table.size()));
        data.insert(data.end(), table.begin(), table.end());
        pad();
    }
    return data;
}

TEST(NoteReader, FindsTheFirstNoteWithTheMessageAndSurvivesDamage) {
    for (const std::size_t alignment : {4U, 8U}) {
        const Data notes = makeNotes(alignment);
        const auto find = [&](const Data& data, std::uint32_t language) {
            return textOf(findInNotes(atEndOfMemory(data), alignment, language, 1));
        };
        EXPECT_EQ(find(notes, 0x409), u"1") << alignment;
        EXPECT_EQ(find(notes, 0x407), u"g") << alignment;
        EXPECT_EQ(find(notes, 0x40C), u"") << alignment;
        damage(notes, [&](const Data& damaged) {
            const std::u16string text = find(damaged, 0x409);
            const bool isCut = damaged.size() < notes.size();
            EXPECT_TRUE(text.empty() || text == u"1" || !isCut) << testing::PrintToString(text);
            EXPECT_LT(2 * text.size(), notes.size());
        });
    }
}

} // namespace
} // namespace zem::msglib::platform
