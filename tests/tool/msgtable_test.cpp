#include "platform/portable/TableReader.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace zem::msglib::platform {
namespace {

namespace fs = std::filesystem;

struct Outcome {
    int status;
    std::string words;
};

Outcome run(const std::string& command) {
    Outcome outcome{-1, {}};
    if (FILE* pipe = popen((command + " 2>&1").c_str(), "r")) {
        for (int byte = std::fgetc(pipe); byte != EOF; byte = std::fgetc(pipe)) {
            outcome.words += static_cast<char>(byte);
        }
        outcome.status = pclose(pipe);
    }
    return outcome;
}

void writeFile(const fs::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

std::string readFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

/// Gives every test a folder of its own, and removes it afterwards.
class MsgtableTest : public testing::Test {
protected:
    void SetUp() override { fs::create_directories(folder_); }
    void TearDown() override { fs::remove_all(folder_); }

    Outcome prepare(const std::string& text) const {
        writeFile(folder_ / "geo.mc", text);
        return run("cd '" + folder_.string() + "' && '" MSGTABLE "' prepare geo.mc copy.mc");
    }

    Outcome compile() const {
        return run("cd '" + folder_.string() + "' && '" WINDMC "' -C 65001 -O 65001 copy.mc");
    }

    Outcome generate() const {
        return run("cd '" + folder_.string() + "' && '" MSGTABLE "' generate geo.mc . .");
    }

    const fs::path folder_ =
        fs::path(testing::TempDir()) /
        (std::string("msgtable_") + testing::UnitTest::GetInstance()->current_test_info()->name());
};

std::string message(const std::string& head, const std::string& text) {
    return head + "\nLanguage=English\n" + text + "\n.\n";
}

TEST_F(MsgtableTest, RefusesWhatTheCompilerLetsThrough) {
    const std::string first = message("MessageId=1 SymbolicName=MSG_ONE", "one");
    const std::string german = "LanguageNames=(German=0x407:MSG00407)\n";
    const std::string longest(32763 - 2, 'x');
    const struct {
        int line;
        std::string text;
        std::string words; ///< empty if the text is fine
    } rows[] = {
        {__LINE__, first, ""},
        {__LINE__, "\xEF\xBB\xBF; comment\r\n" + first, ""},
        {__LINE__, first + "Language=French\nun\n.\n",
         "geo.mc:5: message id 0x00000001 (MSG_ONE): the name French"},
        {__LINE__, german + first + "Language=German\neins\n.\n", ""},
        {__LINE__, german + first + message("MessageId=1 SymbolicName=MSG_ONE", "x"),
         "geo.mc:7: message id 0x00000001 (MSG_ONE): the id comes twice"},
        {__LINE__, first + message("MessageId=1 SymbolicName=MSG_TWO", "two"),
         "geo.mc:6: message id 0x00000001 (MSG_TWO): the id comes twice"},
        {__LINE__, first + message("MessageId= SymbolicName=MSG_ONE", "two"), "not a number"},
        {__LINE__, first + message("MessageId=\nSymbolicName=MSG_ONE", "two"),
         "geo.mc:7: message id 0x00000002 (MSG_ONE): the symbol stands for message id 0x00000001"},
        {__LINE__, message("MessageId=1 SymbolicName=MSG-ONE", "one"), "cannot be the name"},
        {__LINE__, message("MessageId=1\nSeverity=Error", "same code, other id") + first, ""},
        {__LINE__, message("MessageId=0xFFFF", "last"), ""},
        {__LINE__, message("MessageId=0x10000", "x"),
         "geo.mc:1: message id 65536: the number does"},
        {__LINE__, message("MessageId=0xFFFF", "x") + message("MessageId=", "y"),
         "message id 65536"},
        {__LINE__, message("MessageId=0xFFFF", "x") + message("MessageId=+4294967295", "y"),
         "fit 16"},
        {__LINE__, message("MessageId=99999999999999999999", "x"), "not a number of 32 bits"},
        {__LINE__, message("MessageId=-1", "x"), "not a number of 32 bits"},
        {__LINE__, message("MessageId=1x", "x"), "not a number of 32 bits"},
        {__LINE__, "FacilityNames=(F=0x7FF:F)\n" + message("MessageId=1 Facility=F", "x"), ""},
        {__LINE__, "FacilityNames=(\n  F=0x800:F\n)\n" + message("MessageId=1 Facility=F", "x"),
         "geo.mc:5: message id 0x08000001: facility 2048 does not fit"},
        {__LINE__, message("MessageId=1 Facility=Application", "x"), "facility 4095 does not fit"},
        {__LINE__, message("MessageId=1 Facility=Nowhere", "x"), "Nowhere is not declared"},
        {__LINE__, "SeverityNames=(S=4:S)\n" + message("MessageId=1 Severity=S", "x"),
         "severity 4"},
        {__LINE__, "LanguageNames=(English=0x10409:X)\n" + first, "a number of 16 bits"},
        {__LINE__, "LanguageNames=(English=0x409:../X)\n" + first, "the name of a file"},
        {__LINE__, message("MessageId=1", longest), ""},
        {__LINE__, message("MessageId=1", longest + "x"),
         "message id 0x00000001: the text has 32764"},
        {__LINE__, message("MessageId=1", ""), ""},
        {__LINE__, "MessageId=1\nLanguage=English\n.\n",
         "geo.mc:3: message id 0x00000001: the text is"},
        {__LINE__, "MessageId=1\nLanguage=English\none\n" + message("MessageId=2", "x"),
         "geo.mc:4: message id 0x00000001: the text goes on into the next message"},
        {__LINE__, german + "MessageId=1\nLanguage=English\none\nLanguage = German\neins\n.\n",
         "geo.mc:5: message id 0x00000001: the text goes on"},
        {__LINE__, message("MessageId=1", "Language = {0}\nMessageId {1}"), ""},
        {__LINE__, "MessageId=1\nLanguage=English\none\n",
         "geo.mc:3: message id 0x00000001: the text has no"},
        {__LINE__, "MessageId=1\nLanguage=English\none\n.", ""},
        {__LINE__, "MessageId=1\nLanguage=English\none\n. \n",
         "geo.mc:4: message id 0x00000001: blanks"},
        {__LINE__, message("MessageId=1", "caf\xE9"), "geo.mc:3: invalid UTF-8"},
        {__LINE__, message("MessageId=1", "\xED\xA0\x80"), "geo.mc:3: invalid UTF-8"},
        {__LINE__, message("MessageId=1", "a\rb"), "geo.mc:3: NUL or carriage return"},
        {__LINE__, message("MessageId=1", std::string("a\0b", 3)),
         "geo.mc:3: NUL or carriage return"},
        {__LINE__, "Messageid=1\n", "geo.mc:1: unknown keyword: Messageid"},
        {__LINE__, "MessageId=1\nLanguage=English one\n", "geo.mc:2: not understood: one"},
        {__LINE__, "one\n", "geo.mc:1: not understood: one"},
        {__LINE__, "FacilityNames=F\n", "a list in parentheses is missing"},
        {__LINE__, "FacilityNames=()\n" + first, "not a number"},
        {__LINE__, "FacilityNames=(F=1", "no message in the file"},
        {__LINE__, "", "no message in the file"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE("row of line " + std::to_string(row.line));
        const Outcome outcome = prepare(row.text);
        EXPECT_EQ(outcome.status == 0, row.words.empty()) << outcome.words;
        EXPECT_NE(outcome.words.find(row.words), std::string::npos) << outcome.words;
    }
}

TEST_F(MsgtableTest, CopyHasTheLineEndsThatTheCompilerNeeds) {
    ASSERT_EQ(prepare("\xEF\xBB\xBF;\n\r\nMessageId=1\nLanguage=English\na\n\n.").status, 0);
    EXPECT_EQ(readFile(folder_ / "copy.mc"),
              ";\r\n\r\nMessageId=1\r\nLanguage=English\r\na\r\n\r\n.\r\n");
}

TEST_F(MsgtableTest, SplitsBlocks) {
    std::string source = "FacilityNames=(F=5:F G=0x7FF:G)\n";
    for (const std::string facility : {"F", "G"}) {
        for (int code = 1; code <= 100; ++code) {
            source += message("MessageId=" + std::to_string(code) +
                                  " Severity=Error Facility=" + facility,
                              facility + std::to_string(code));
        }
    }
    ASSERT_EQ(prepare(source).words, "");
    ASSERT_EQ(compile().words, "");
    ASSERT_EQ(generate().words, "");
    const std::string table = readFile(folder_ / "geo.bin");
    const Bytes bytes(table.data(), table.size());
    EXPECT_EQ(bytes.u32(0), 26U);
    for (std::uint32_t index = 0; index < bytes.u32(0); ++index) {
        EXPECT_LT(bytes.u32(8 + index * 12) - bytes.u32(4 + index * 12), 8U) << index;
    }
    for (std::uint32_t code = 1; code <= 100; ++code) {
        const auto text = TableReader(bytes).find(0xC7FF0000 | code);
        ASSERT_TRUE(text) << code;
        std::u16string units(text->length(), u'\0');
        text->copyTo(units.data());
        EXPECT_EQ(units.front(), u'G');
        EXPECT_EQ(units.size(), 3 + std::to_string(code).size());
    }
    EXPECT_FALSE(TableReader(bytes).find(0xC7FF0000));
    EXPECT_FALSE(TableReader(bytes).find(0xC7FF0065));
    const std::string generated = readFile(folder_ / "geo.cpp");
    EXPECT_NE(generated.find("registerFacility(5, "), std::string::npos);
    EXPECT_NE(generated.find("registerFacility(2047, "), std::string::npos);
}

TEST_F(MsgtableTest, RefusesTablesOfOtherTexts) {
    ASSERT_EQ(prepare(message("MessageId=1", "one")).status, 0);
    EXPECT_NE(generate().words.find("MSG00001.bin: not a compiled message table"),
              std::string::npos);
    ASSERT_EQ(compile().status, 0);
    ASSERT_EQ(prepare(message("MessageId=1", "two")).status, 0);
    EXPECT_NE(generate().words.find("has not kept the texts"), std::string::npos);
    const std::string table = readFile(folder_ / "MSG00001.bin");
    for (std::size_t size = 0; size + 4 < table.size(); ++size) {
        writeFile(folder_ / "MSG00001.bin", table.substr(0, size));
        EXPECT_NE(generate().status, 0) << size;
    }
}

} // namespace
} // namespace zem::msglib::platform
