// Message tables and note segments. The input is the bytes of a table, or of a segment.

#include "Properties.h"
#include "platform/portable/NoteReader.h"
#include "platform/portable/TableReader.h"

#include <cstring>
#include <set>

namespace zem::msglib::fuzzing {
namespace {

using platform::Bytes;
using platform::findInNotes;
using platform::MessageText;
using platform::TableReader;

constexpr std::uint32_t language = 0x409;

std::u16string unitsOf(const MessageText& text) {
    std::u16string units(text.length(), u'\0');
    text.copyTo(units.data());
    require(units.find(u'\0') == std::u16string::npos, "a text ends before its first NUL");
    return units;
}

void appendNumber(std::string& bytes, std::uint32_t number) {
    char raw[sizeof number];
    std::memcpy(raw, &number, sizeof number);
    bytes.append(raw, sizeof raw);
}

// Returns a note segment: a note without a table, and one that contains the table.
std::string notesOf(const std::string& table) {
    std::string notes;
    for (const std::uint32_t number : {4U, 0U, 1U}) {
        appendNumber(notes, number);
    }
    notes.append("GNU\0", 4);
    appendNumber(notes, 11);
    appendNumber(notes, static_cast<std::uint32_t>(8 + table.size()));
    appendNumber(notes, 0x4d544231);
    notes.append("zem.msglib\0", 12);
    appendNumber(notes, language);
    appendNumber(notes, static_cast<std::uint32_t>(table.size()));
    return notes + table;
}

// Returns the identifiers at the ends of the first blocks, and their neighbours.
std::set<std::uint32_t> interestingIds(Bytes table) {
    constexpr std::size_t maxBlocks = 8;
    std::set<std::uint32_t> ids = {0, 1, UINT32_MAX};
    for (std::size_t block = 0; block < maxBlocks; ++block) {
        for (const std::size_t offset : {4 + 12 * block, 8 + 12 * block}) {
            const std::uint32_t end = table.u32(offset);
            ids.insert({end - 1, end, end + 1});
        }
    }
    return ids;
}

} // namespace
} // namespace zem::msglib::fuzzing

const zem::msglib::fuzzing::ShortInputs zem::msglib::fuzzing::shortInputs = {"", ""};

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zem::msglib::fuzzing;
    const Bytes table(data, size);
    const std::string segment = notesOf(Input(data, size).whole);
    const Bytes notes(segment.data(), segment.size());
    for (const std::uint32_t id : interestingIds(table)) {
        const std::u16string text = unitsOf(TableReader(table).find(id));
        for (const std::size_t alignment : {4U, 8U}) {
            require(unitsOf(findInNotes(notes, alignment, language, id)) == text,
                    "a note gives the texts of its table");
            require(findInNotes(notes, alignment, language + 1, id).isEmpty(),
                    "only in its language");
            unitsOf(findInNotes(table, alignment, language, id));
        }
    }
    return 0;
}
