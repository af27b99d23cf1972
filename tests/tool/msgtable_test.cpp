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

/// Runs a command in a folder and returns what it writes, in front of it "failed: " if it fails.
std::string run(const fs::path& folder, const std::string& command) {
    std::string words;
    FILE* const pipe = popen(("cd '" + folder.string() + "' && " + command + " 2>&1").c_str(), "r");
    for (int byte = std::fgetc(pipe); byte != EOF; byte = std::fgetc(pipe)) {
        words += static_cast<char>(byte);
    }
    return pclose(pipe) == 0 ? words : "failed: " + words;
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

    std::string prepare(const std::string& text) const {
        std::ofstream(folder_ / "geo.mc", std::ios::binary) << text;
        return run(folder_, "'" MSGTABLE "' prepare geo.mc copy.mc");
    }
    std::string compile() const { return run(folder_, "'" WINDMC "' -C 65001 -O 65001 copy.mc"); }
    std::string generate() const { return run(folder_, "'" MSGTABLE "' generate geo.mc . ."); }

    const fs::path folder_ =
        fs::path(testing::TempDir()) /
        (std::string("msgtable_") + testing::UnitTest::GetInstance()->current_test_info()->name());
};

std::string message(const std::string& head, const std::string& text = "x") {
    return head + "\nLanguage=English\n" + text + "\n.\n";
}

TEST_F(MsgtableTest, RefusesWhatTheCompilerLetsThrough) {
    const std::string first = message("MessageId=1 SymbolicName=ONE");
    const std::string german = "LanguageNames=(German=0x407:MSG00407)\n";
    const std::string unended = "MessageId=1\nLanguage=English\none\n";
    const std::string longest(32763 - 2, 'x');
    const struct {
        int line;
        std::string text;
        std::string words; ///< empty if the text is fine
    } rows[] = {
        // names and numbers
        {__LINE__, "\xEF\xBB\xBF; comment\r\n" + german + first + "Language=German\neins\n.\n", ""},
        {__LINE__, first + "Language=French\nun\n.\n",
         "geo.mc:5: message id 0x00000001 (ONE): the"},
        {__LINE__, first + message("MessageId=1 SymbolicName=TWO"), "(TWO): the id comes twice"},
        {__LINE__, first + message("MessageId=\nSymbolicName=ONE"),
         "geo.mc:7: message id 0x00000002 (ONE): the symbol stands for message id 0x00000001"},
        {__LINE__, message("MessageId=1 SymbolicName=MSG-ONE"), "cannot be the name"},
        {__LINE__, message("MessageId=1\nSeverity=Error", "same code, other id") + first, ""},
        {__LINE__, message("MessageId= SymbolicName=ONE"), "not a number"},
        {__LINE__, message("MessageId=0x10000"), "geo.mc:1: message id 65536: the number does"},
        {__LINE__, message("MessageId=0xFFFF") + message("MessageId=", "y"), "message id 65536"},
        {__LINE__, message("MessageId=0xFFFF") + message("MessageId=+4294967295"), "fit 16"},
        {__LINE__, message("MessageId=99999999999999999999"), "not a number of 32 bits"},
        {__LINE__, message("MessageId=1x"), "not a number of 32 bits"},
        {__LINE__, "FacilityNames=(F=0x7FF:F)\n" + message("MessageId=1 Facility=F"), ""},
        {__LINE__, "FacilityNames=(\n  F=0x800:F\n)\n" + message("MessageId=1 Facility=F"),
         "geo.mc:5: message id 0x08000001: facility 2048 does not fit"},
        {__LINE__, message("MessageId=1 Facility=Nowhere"), "Nowhere is not declared"},
        {__LINE__, "SeverityNames=(S=4:S)\n" + message("MessageId=1 Severity=S"), "severity 4"},
        {__LINE__, "LanguageNames=(English=0x10409:X)\n" + first, "a number of 16 bits"},
        {__LINE__, "LanguageNames=(English=0x409:../X)\n" + first, "the name of a file"},
        // texts and their ends
        {__LINE__, message("MessageId=1", longest) + message("MessageId=2", ""), ""},
        {__LINE__, message("MessageId=1", longest + "x"), "0x00000001: the text has 32764"},
        {__LINE__, "MessageId=1\nLanguage=English\n.\n",
         "geo.mc:3: message id 0x00000001: the text"},
        {__LINE__, unended + message("MessageId=2"),
         "geo.mc:4: message id 0x00000001: the text goes"},
        {__LINE__, german + unended + "Language = German\neins\n.\n", "geo.mc:5: message id"},
        {__LINE__, message("MessageId=1", "Language = {0}\nMessageId {1}"), ""},
        {__LINE__, unended, "geo.mc:3: message id 0x00000001: the text has no"},
        {__LINE__, unended + ".", ""},
        {__LINE__, unended + ". \n", "geo.mc:4: message id 0x00000001: blanks"},
        {__LINE__, message("MessageId=1", "caf\xE9"), "geo.mc:3: invalid UTF-8"},
        {__LINE__, message("MessageId=1", "\xED\xA0\x80"), "geo.mc:3: invalid UTF-8"},
        {__LINE__, message("MessageId=1", "a\rb"), "geo.mc:3: NUL or carriage return"},
        {__LINE__, message("MessageId=1", {'a', '\0'}), "geo.mc:3: NUL or carriage return"},
        // what is no message text file
        {__LINE__, "Messageid=1\n", "geo.mc:1: unknown keyword: Messageid"},
        {__LINE__, "MessageId=1\nLanguage=English one\n", "geo.mc:2: not understood: one"},
        {__LINE__, "FacilityNames=F\n", "a list in parentheses is missing"},
        {__LINE__, "FacilityNames=()\n" + first, "not a number"},
        {__LINE__, "FacilityNames=(F=1", "no message in the file"},
        {__LINE__, "", "no message in the file"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const std::string words = prepare(row.text);
        EXPECT_EQ(words.empty(), row.words.empty()) << words;
        EXPECT_EQ(words.rfind("failed: ", 0) == 0, !row.words.empty()) << words;
        EXPECT_NE(words.find(row.words), std::string::npos) << words;
    }
}

TEST_F(MsgtableTest, CopyHasTheLineEndsThatTheCompilerNeeds) {
    ASSERT_EQ(prepare("\xEF\xBB\xBF;\n\r\nMessageId=1\nLanguage=English\na\n\n."), "");
    EXPECT_EQ(readFile(folder_ / "copy.mc"),
              ";\r\n\r\nMessageId=1\r\nLanguage=English\r\na\r\n\r\n.\r\n");
}

TEST_F(MsgtableTest, SplitsBlocks) {
    std::string source = "FacilityNames=(F=5:F G=0x7FF:G)\n";
    for (const std::string head : {" Severity=Error Facility=F", " Severity=Error Facility=G"}) {
        for (int code = 1; code <= 100; ++code) {
            source += message("MessageId=" + std::to_string(code) + head,
                              std::string(static_cast<std::size_t>(code), head.back()));
        }
    }
    ASSERT_EQ(prepare(source), "");
    ASSERT_EQ(compile(), "");
    ASSERT_EQ(generate(), "");
    const std::string table = readFile(folder_ / "geo.bin");
    const Bytes bytes(table.data(), table.size());
    EXPECT_EQ(bytes.u32(0), 26U);
    for (std::uint32_t index = 0; index < bytes.u32(0); ++index) {
        EXPECT_LT(bytes.u32(8 + index * 12) - bytes.u32(4 + index * 12), 8U) << index;
    }
    for (std::uint32_t code = 0; code <= 101; ++code) {
        const std::size_t length = TableReader(bytes).find(0xC7FF0000 | code).length();
        EXPECT_EQ(length, code % 101 == 0 ? 0 : code + 2) << code;
    }
    const std::string generated = readFile(folder_ / "geo.cpp");
    EXPECT_NE(generated.find("registerFacility(5, "), std::string::npos);
    EXPECT_NE(generated.find("registerFacility(2047, "), std::string::npos);
}

TEST_F(MsgtableTest, RefusesTablesOfOtherTexts) {
    const fs::path table = folder_ / "MSG00001.bin";
    ASSERT_EQ(prepare(message("MessageId=1", "one")), "");
    EXPECT_NE(generate().find("MSG00001.bin: not a compiled message table"), std::string::npos);
    ASSERT_EQ(compile(), "");
    ASSERT_EQ(prepare(message("MessageId=1", "two")), "");
    EXPECT_NE(generate().find("has not kept the texts"), std::string::npos);
    for (std::uintmax_t size = fs::file_size(table) - 4; size-- > 0;) {
        fs::resize_file(table, size);
        EXPECT_EQ(generate().rfind("failed: ", 0), 0U) << size;
    }
}

} // namespace
} // namespace zem::msglib::platform
