// Message text files. The input is an encoding in the first line and a file after it. The file is
// read, checked and compiled, and the tables are read back.

#include "Properties.h"

#include "platform/portable/TableReader.h"
#include "tool/catalogue/CatalogueReader.h"
#include "tool/checks/CatalogueRules.h"
#include "tool/diagnostics/DiagnosticJson.h"
#include "tool/diagnostics/DiagnosticText.h"
#include "tool/generated/GeneratedSources.h"
#include "tool/generated/MessageTable.h"
#include "tool/text/Unicode.h"

#include <boost/locale/encoding_utf.hpp>

#include <set>

namespace zem::msglib::fuzzing {
namespace {

using namespace tool;

bool isBoundary(const SourceFile& file, std::size_t offset) {
    const std::string_view text = file.text();
    return offset == text.size() ||
           (offset < text.size() && (static_cast<unsigned char>(text[offset]) & 0xC0) != 0x80);
}

void checkPlace(const Place& place) {
    require(isBoundary(*place.file, place.offset) && isBoundary(*place.file, place.end()),
            "a place is some characters of its file");
}

/// Checks that the diagnostics have messages and valid places, and are UTF-8 in every format.
void checkDiagnostics(const std::vector<Diagnostic>& diagnostics) {
    std::size_t last = 0;
    for (const Diagnostic& diagnostic : diagnostics) {
        checkPlace(diagnostic.place);
        require(!diagnostic.message.empty(), "a diagnostic has a message");
        require(diagnostic.severity != Severity::off, "a diagnostic has a severity");
        require(diagnostic.place.offset >= last, "diagnostics are in order");
        last = diagnostic.place.offset;
        for (const Note& note : diagnostic.notes) {
            checkPlace(note.place.file != nullptr ? note.place : diagnostic.place);
        }
    }
    for (const std::string& text : {textOf(diagnostics, true), msvcTextOf(diagnostics),
                                    jsonOf(diagnostics), sarifOf(diagnostics)}) {
        require(validUtf8Length(text) == text.size(), "diagnostics are UTF-8");
    }
}

std::string withCrLf(std::string_view text) {
    std::string out;
    for (const char byte : text) {
        out += byte == '\n' ? "\r\n" : std::string(1, byte);
    }
    return out;
}

/// Checks that the compiled tables have every text.
void checkTables(const Catalogue& catalogue, std::size_t entriesPerBlock) {
    const auto tables = compileTables({&catalogue}, entriesPerBlock);
    for (const Message& message : catalogue.messages) {
        require(!message.texts.empty(), "a message has a text");
        for (const MessageText& text : message.texts) {
            const std::string& table = tables.at(text.language);
            const auto found = platform::TableReader({table.data(), table.size()}).find(message.id);
            std::u16string units(found.length(), u'\0');
            found.copyTo(units.data());
            require(boost::locale::conv::utf_to_utf<char>(units) == withCrLf(text.pattern.text()),
                    "the table has the text of the file");
        }
    }
    require(sourceText(CatalogueName("a.mc"), catalogue, tables).find(")asm") != std::string::npos,
            "a source embeds the tables");
}

struct Reading {
    Catalogue catalogue;
    std::vector<Diagnostic> diagnostics;
};

Reading read(const std::string& bytes, const std::string& encoding) {
    Diagnostics diagnostics;
    std::vector<Catalogue> all;
    all.push_back(readCatalogue(readSource("a.mc", bytes, encoding, 0, diagnostics), diagnostics));
    checkIdentifiers(all, diagnostics);
    return {std::move(all.front()), diagnostics.take()};
}

/// Checks that a file means the same in UTF-8 with the other line ends.
void checkOtherForm(const Reading& reading) {
    const Reading other = read(withCrLf(reading.catalogue.source->text()), "");
    require(other.diagnostics.size() == reading.diagnostics.size(), "line ends change nothing");
    require(textOf(other.diagnostics, false) == textOf(reading.diagnostics, false),
            "line ends change no diagnostic");
}

} // namespace
} // namespace zem::msglib::fuzzing

const zem::msglib::fuzzing::ShortInputs zem::msglib::fuzzing::shortInputs = {
    "\nMessageId=1\nLanguage=English\nx\n", "\n.; =M"};

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zem::msglib::fuzzing;
    static const std::set<std::string> encodings = {"CP1252",      "CP932",  "UTF-7",
                                                    "ISO-2022-JP", "UTF-16", "GB18030"};
    const Input input(data, size);
    const Reading reading = read(input.rest, encodings.count(input.line) != 0 ? input.line : "");
    checkDiagnostics(reading.diagnostics);
    const bool isWhole = std::none_of(
        reading.diagnostics.begin(), reading.diagnostics.end(), [](const Diagnostic& diagnostic) {
            return diagnostic.rule == &zem::msglib::tool::rules::fileEncoding;
        });
    if (isWhole) {
        checkOtherForm(reading);
    }
    if (!hasErrors(reading.diagnostics)) {
        checkTables(reading.catalogue, zem::msglib::tool::shortBlock);
        checkTables(reading.catalogue, zem::msglib::tool::longestBlock);
    }
    return 0;
}
