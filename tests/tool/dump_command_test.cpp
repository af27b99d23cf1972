// The messages of modules and tables: which files are read, which are refused, and the output.

#include "tool/ElfBytes.h"
#include "tool/Program.h"
#include "tool/Reading.h"
#include "tool/generated/MessageTable.h"
#include "tool/table/ModuleTables.h"
#include "tool/text/CannotRun.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace zem::msglib::tool {
namespace {

const std::string catalogue = "LanguageNames=(German=0x407:G)\nFacilityNames=(App=0x7FF)\n"
                              "MessageId=1 Severity=Error Facility=App\n"
                              "Language=English\none {0}\n\ntwo 😀\n.\n"
                              "Language=German\neins {0}\n.\n"
                              "MessageId=0x20\nSeverity=Warning Facility=App\n"
                              "Language=English\n\x1B[0m\n.\n";
const std::string listing = "Language 0x0407: 1 message\n\n"
                            "0xC7FF0001  error  facility 2047  code 1\n    eins {0}\n\n"
                            "Language 0x0409: 2 messages\n\n"
                            "0x87FF0020  warning  facility 2047  code 32\n    \uFFFD[0m\n\n"
                            "0xC7FF0001  error    facility 2047  code 1\n"
                            "    one {0}\n    \n    two 😀\n";

std::string table(std::size_t entriesPerBlock) {
    const Reading reading = readAll({catalogue});
    return compileTables({&reading.catalogues[0]}, entriesPerBlock).at(0x409);
}

/// Returns the error for a file; empty if it is read.
std::string refusalOf(const std::string& bytes) {
    try {
        readTables("x", bytes);
    } catch (const CannotRun& refusal) {
        return refusal.what();
    }
    return {};
}

/// Returns bytes with one of them changed.
std::string changed(std::string bytes, std::size_t at, std::size_t value) {
    bytes[at] = static_cast<char>(value);
    return bytes;
}

class DumpCommandTest : public FolderTest {
protected:
    Outcome dump(const std::string& arguments) const { return run("msglib dump " + arguments); }
};

TEST(ModuleTablesTest, ReadsEveryKindOfElf) {
    const Reading reading = readAll({catalogue});
    const auto tables = compileTables({&reading.catalogues[0]}, shortBlock);
    for (unsigned kind = 0; kind < 8; ++kind) {
        SCOPED_TRACE(kind);
        ElfBytes elf({(kind & 1) != 0, (kind & 2) != 0, (kind & 4) != 0});
        for (const auto& [language, bytes] : tables) {
            elf.addTable(language, bytes, bytes.size());
        }
        elf.addTable(0x409, tables.at(0x407), tables.at(0x407).size()); // of another catalogue
        const auto found = readTables("x", elf.bytes());
        ASSERT_EQ(found.size(), 2U);
        EXPECT_EQ(found[0].language, 0x407U);
        EXPECT_EQ(found[0].texts.at(0xC7FF0001), "eins {0}\r\n");
        EXPECT_EQ(found[1].language, 0x409U);
        EXPECT_EQ(found[1].texts.at(0xC7FF0001), "one {0}\r\n\r\ntwo 😀\r\n");
        EXPECT_EQ(found[1].texts.size(), 2U);
        const std::string whole = elf.bytes();
        for (std::size_t size = 0; size < whole.size(); ++size) {
            EXPECT_NE(refusalOf(whole.substr(0, size)), "") << size;
        }
    }
}

TEST(ModuleTablesTest, RefusesDamagedTables) {
    const std::string good = table(longestBlock); // two blocks, entries from 28 on
    ElfBytes tooLong({});
    tooLong.addTable(0x409, good, good.size() + 9);
    ElfBytes damaged({});
    damaged.addTable(0x409, changed(good, 20, 0xFF), good.size());
    const struct {
        int line;
        std::string bytes;
        const char* words; ///< of the refusal; none if empty
    } rows[] = {
        {__LINE__, good, ""},
        {__LINE__, std::string(4, '\0'), ""},
        {__LINE__, "", "neither a module for ELF nor a message table"},
        {__LINE__, changed(good, 0, 100), "neither a module for ELF nor"},
        {__LINE__, changed(good, 4, 0xFF), "block that begins with 0x87FF00FF is not in"},
        {__LINE__, changed(good, 8, 0xFF), "entry of 0x87FF00"},
        {__LINE__, changed(good, 12, 4), "entry of 0x87FF0020 lies outside"},
        {__LINE__, changed(good, 14, 4), "entry of 0x87FF0020 lies outside"},
        {__LINE__, changed(good, 19, 0x80), "block that begins with 0x80FF0001 is not in"},
        {__LINE__, changed(good, 28, 3), "entry of 0x87FF0020 lies outside"},
        {__LINE__, changed(good, 28, 255), "entry of 0x87FF0020 lies outside"},
        {__LINE__, changed(good, 28, 5), "entry of 0x87FF0020 has a form"},
        {__LINE__, changed(good, 30, 2), "entry of 0x87FF0020 has a form"},
        {__LINE__, changed(changed(good, 28, good.size() - 28), 24, 28), "overlaps"},
        {__LINE__, tooLong.bytes(), "longer than its note"},
        {__LINE__, damaged.bytes(), "language 0x0409 is damaged: its entry"},
        {__LINE__, "MZ", "a module for Windows"},
        {__LINE__, "!<arch>\n", "an archive of objects"},
        {__LINE__,
         "\x7F"
         "ELF",
         "its header is damaged"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const std::string words = refusalOf(row.bytes);
        EXPECT_EQ(words.empty(), std::string_view(row.words).empty()) << words;
        EXPECT_NE(words.find(row.words), std::string::npos) << words;
    }
}

TEST_F(DumpCommandTest, ShowsCompiledMessages) {
    write("App.mc", catalogue);
    write("main.cpp", "#include <msglib/MessageLibrary.h>\nint main() {}\n");
    ASSERT_EQ(run("msglib compile App.mc --output .").output, "");
    ASSERT_EQ(run("msglib compile App.mc --output . --format rc").output, "");
    EXPECT_EQ(dump("messages_0407.bin").output,
              "1 message\n\n0xC7FF0001  error  facility 2047  code 1\n    eins {0}\n");
    ASSERT_EQ(run("msglib compile App.mc --output .").output, "");
    ASSERT_EQ(
        run(CXX_COMPILER " -std=c++17 -I" + quoted(INCLUDE_FOLDER) + " -I" + quoted(GEOM_FOLDER) +
            " -c App.cpp && " CXX_COMPILER " -shared -nostdlib App.o -o App.so && strip App.so")
            .output,
        "");
    EXPECT_EQ(dump("App.o").output, listing);
    const Outcome stripped = dump("App.so");
    EXPECT_EQ(stripped.output, listing);
    EXPECT_EQ(stripped.status, 0);
    EXPECT_NE(dump("App.so --format json").output.find(R"("text": "one {0}\r\n\r\ntwo 😀\r\n")"),
              std::string::npos);
    EXPECT_NE(dump("App.so --color always").output.find("\x1B[1m0xC7FF0001\x1B[0m"),
              std::string::npos);
}

#ifdef DESKTOP
TEST_F(DumpCommandTest, ReadsStrippedModules) {
    std::filesystem::copy(DESKTOP, folder_ / "desktop");
    const std::string whole = dump("desktop").output;
    EXPECT_EQ(
        whole.rfind("Language 0x0407: 4 messages\n\n0x40010001  informational  facility 1", 0), 0U);
    ASSERT_EQ(run("strip -o stripped desktop").output, "");
    EXPECT_EQ(dump("stripped").output, whole);
    EXPECT_EQ(run("msglib diff stripped desktop").output, "no changes\n");
}
#endif

TEST_F(DumpCommandTest, HasTheExitStatusOfTheFile) {
    write("empty.bin", std::string(4, '\0'));
    write("text", "text");
    const struct {
        int line;
        const char* arguments;
        int status;
        const char* words;
    } rows[] = {
        {__LINE__, "empty.bin", 1, "empty.bin: this file has no messages"},
        {__LINE__, "empty.bin --format json", 1, "[]"},
        {__LINE__, "\"$(command -v msglib)\"", 1, "this file has no messages"},
        {__LINE__, "text", 2, "text: this is neither a module"},
        {__LINE__, "missing", 2, "missing: cannot be read"},
        {__LINE__, "", 2, "MODULE is required"},
        {__LINE__, "--help", 0, "msglib dump plugin.so --format json"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        expect(dump(row.arguments), row.status, row.words);
    }
}

} // namespace
} // namespace zem::msglib::tool
