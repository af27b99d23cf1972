// Modules and message tables of any bytes, read by the host program.

#include "Properties.h"

#include "platform/portable/TableReader.h"
#include "tool/table/ModuleTables.h"
#include "tool/table/TableListing.h"
#include "tool/text/CannotRun.h"
#include "tool/text/Unicode.h"

#include <boost/locale/encoding_utf.hpp>

namespace zem::msglib::fuzzing {
namespace {

using namespace tool;

void checkListings(const std::vector<LanguageTable>& tables) {
    for (const LanguageTable& table : tables) {
        require(!table.texts.empty(), "a table has messages");
        for (const auto& [id, text] : table.texts) {
            require(!text.empty() && validUtf8Length(text) == text.size(), "a text is UTF-8");
        }
    }
    require(!jsonOf(tables).empty(), "everything can be shown");
    require(textOf(tables, false).find('\x1B') == std::string::npos, "controls are not shown");
}

/// Checks that the library finds every decoded message.
void checkLookUp(const std::string& bytes, const TableTexts& texts) {
    const platform::TableReader reader({bytes.data(), bytes.size()});
    for (const auto& [id, text] : texts) {
        const auto found = reader.find(id);
        std::u16string units(found.length(), u'\0');
        found.copyTo(units.data());
        const bool isWhole = text.find("\uFFFD") == std::string::npos; // no unpaired surrogate
        require(!isWhole || boost::locale::conv::utf_to_utf<char>(units) == text,
                "the library finds the text");
    }
}

} // namespace
} // namespace zem::msglib::fuzzing

const zem::msglib::fuzzing::ShortInputs zem::msglib::fuzzing::shortInputs = {
    std::string_view("\1\0\0\0\1\0\0\0\1\0\0\0\x10\0\0\0", 16), std::string_view("\0\1\x8x", 4)};

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zem::msglib::fuzzing;
    const std::string bytes = Input(data, size).whole;
    try {
        const auto tables = readTables("x", bytes);
        checkListings(tables);
        if (tables.size() == 1 && !tables.front().language) {
            checkLookUp(bytes, tables.front().texts);
        }
    } catch (const zem::msglib::tool::CannotRun& refusal) {
        require(refusal.what() != std::string(), "a refusal has a message");
    }
    return 0;
}
