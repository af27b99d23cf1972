// The command `compile` as builds and authors run it: the files that it writes, and its exit
// status.

#include "tool/Program.h"

#include <chrono>
#include <thread>

namespace zem::msglib::tool {
namespace {

namespace fs = std::filesystem;

const std::string good = "FacilityNames=(App=0x012 Other=0x7FF)\n"
                         "MessageId=1 Severity=Error Facility=App SymbolicName=MSG_A\n"
                         "Language=English\nx)asm\"1\n.\n"
                         "MessageId=2 Severity=Error Facility=Other SymbolicName=MSG_B\n"
                         "Language=English\nx\n.\n";
const std::string wrong = "MessageId=1\n";

class CompileCommandTest : public FolderTest {
protected:
    Outcome compile(const std::string& arguments) const {
        return run("msglib compile " + arguments);
    }
};

TEST_F(CompileCommandTest, WritesTheSameBytesEverywhere) {
    fs::create_directories(folder_ / "a b");
    write("App.mc", good);
    write("a b/App.mc", good);
    ASSERT_EQ(compile("App.mc --output out").output, "");
    ASSERT_EQ(compile("'../x/a b/App.mc' --output 'ä'").status, 2);
    ASSERT_EQ(compile("\"$PWD/a b/App.mc\" --output 'deep/ä'").output, "");
    for (const char* const name : {"App.h", "AppCalls.h", "App.cpp"}) {
        const std::string bytes = read(fs::path("out") / name);
        EXPECT_EQ(bytes, read(fs::path("deep/ä") / name));
        EXPECT_EQ(bytes.find(folder_.string()), std::string::npos);
    }
    EXPECT_EQ(read("out/App.h"),
              "// Generated from App.mc: edit that file, not this one.\n#pragma once\n\n"
              "constexpr unsigned int MSG_A = 0xC0120001U;\n"
              "constexpr unsigned int MSG_B = 0xC7FF0002U;\n\n"
              "/// Registers this module for the messages above. Call it before the first of them "
              "is rendered,\n/// from code that is linked into this module.\n"
              "void registerApp();\n");
    const std::string source = read("out/App.cpp");
    EXPECT_NE(source.find("registerFacility(18, "), std::string::npos);
    EXPECT_NE(source.find("registerFacility(2047, "), std::string::npos);
}

TEST_F(CompileCommandTest, TouchesNoFileThatStaysTheSame) {
    write("App.mc", good);
    compile("App.mc --output .");
    const auto before = fs::file_time_type::clock::now() - std::chrono::hours(1);
    const auto touched = [&] {
        std::string names;
        for (const char* const name : {"App.h", "AppCalls.h", "App.cpp"}) {
            names += fs::last_write_time(folder_ / name) == before ? "" : name;
            fs::last_write_time(folder_ / name, before);
        }
        return names;
    };
    touched();
    write("App.mc", "; a comment\n" + good);
    compile("App.mc --output .");
    EXPECT_EQ(touched(), "");
    write("App.mc", good + "MessageId=1\nLanguage=English\nx\n.\n");
    EXPECT_EQ(compile("App.mc --output .").status, 1); // the severity is missing
    EXPECT_EQ(touched(), "");
    write("App.mc", good + "; msglib: no-line-end\nMessageId=3 Severity=Error Facility=App\n"
                           "Language=English\nx\n.\n");
    EXPECT_EQ(compile("App.mc --output .").output, "");
    EXPECT_EQ(touched(), "App.cpp");
}

TEST_F(CompileCommandTest, WritesAllFilesOrNone) {
    write("App.mc", good);
    fs::create_directories(folder_ / "out/App.cpp"); // a folder in the place of the file
    const Outcome outcome = compile("App.mc --output out");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_NE(outcome.output.find("out/App.cpp: cannot be written"), std::string::npos)
        << outcome.output;
    std::string names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder_ / "out")) {
        names += entry.path().filename().string() + " ";
    }
    EXPECT_EQ(names, "App.cpp ");
    EXPECT_EQ(run("(ulimit -f 4; trap '' XFSZ; msglib compile App.mc --output full)").status,
              0); // fits
    write("App.mc", good + "MessageId=3 Severity=Error Facility=App\nLanguage=English\n" +
                        std::string(3000, 'x') + "\n.\n");
    const std::string before = read("full/App.cpp");
    const Outcome full = run("(ulimit -f 4; trap '' XFSZ; msglib compile App.mc --output full)");
    EXPECT_EQ(full.status, 2);
    EXPECT_NE(full.output.find("File too large"), std::string::npos) << full.output;
    EXPECT_EQ(read("full/App.cpp"), before);
    EXPECT_FALSE(fs::exists(folder_ / "full/App.cpp.new"));
}

TEST_F(CompileCommandTest, HasTheExitStatusOfItsDiagnostics) {
    fs::create_directories(folder_ / "b");
    for (const char* const name :
         {"Good.mc", "b/Good.mc", "go od.mc", "go-od.mc", "GoodCalls.mc", "a\"b.mc"}) {
        write(name, good);
    }
    write("Wrong.mc", wrong);
    write("Warned.mc", "MessageId=1 SymbolicName=EOF\nLanguage=English\nx\n.\n");
    const struct {
        int line;
        std::string arguments;
        int status;
        std::string words; ///< of the output; none if empty
    } rows[] = {
        {__LINE__, "Good.mc --output x", 0, ""},
        {__LINE__, "Wrong.mc --output x", 1, "Wrong.mc:1:1: error: the message has no text"},
        {__LINE__, "Good.mc Wrong.mc --output x", 1, "Wrong.mc:1:1"},
        {__LINE__, "Warned.mc --output x", 0, "Warned.mc:1:26: warning: "},
        {__LINE__, "Warned.mc --output x --allow reserved-symbol", 0, ""},
        {__LINE__, "Warned.mc --output x --deny warnings", 1, "error: "},
        {__LINE__, "--deny reserved-symbol Warned.mc --output x", 1, "error: "},
        {__LINE__, "Warned.mc --output x --diagnostics json 2>/dev/null", 0, "\"line\": 1"},
        {__LINE__, "Warned.mc --output x --diagnostics sarif 2>/dev/null", 0, "\"2.1.0\""},
        {__LINE__, "Warned.mc --output x --diagnostics msvc", 0, "Warned.mc(1,26): warning"},
        {__LINE__, "Warned.mc --output x --color always", 0, "\x1B[1;35mwarning: "},
        {__LINE__, "Warned.mc --output x --diagnostics json >/dev/full", 2, "cannot be written"},
        {__LINE__, "Missing.mc --output x", 2, "Missing.mc: cannot be read: No such file"},
        {__LINE__, "b --output x", 2, "b: cannot be read: Is a directory"},
        {__LINE__, "Good.mc --output Wrong.mc", 2, "Wrong.mc: cannot be written"},
        {__LINE__, "Good.mc --output x --encoding no-such", 2, "no encoding no-such"},
        {__LINE__, "Good.mc --output x --deny no-such", 2, "no rule no-such"},
        {__LINE__, "Good.mc --output x --format pe", 2, "pe not in"},
        {__LINE__, "Good.mc", 2, "--output is required"},
        {__LINE__, "--output x", 2, "FILE is required"},
        {__LINE__, "Good.mc b/Good.mc --output x", 2, "another catalogue has the name Good"},
        {__LINE__, "'go od.mc' go-od.mc --output x", 2, "similar for the function registerGoOd"},
        {__LINE__, "Good.mc GoodCalls.mc --output x", 2,
         "similar for the function registerGoodCalls"},
        {__LINE__, "Good.mc --output x --namespace Good=app::good", 0, ""},
        {__LINE__, "Good.mc --output x --namespace Good=app::default", 2, "CATALOGUE=NAMESPACE"},
        {__LINE__, "Good.mc --output x --namespace app", 2, "CATALOGUE=NAMESPACE"},
        {__LINE__, "Good.mc --output x --namespace Bad=app", 2, "there is no catalogue Bad"},
        {__LINE__, "Good.mc --output x --namespace Good=MSG_A::x", 2,
         "MSG_A is also the namespace"},
        {__LINE__, "'a\"b.mc' --output x", 2, "a header cannot have the name"},
        {__LINE__, "--help", 0, "msglib compile App.mc --output ."},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const Outcome outcome = compile(row.arguments);
        expect(outcome, row.status, row.words);
        EXPECT_EQ(outcome.output.empty(), row.words.empty()) << outcome.output;
    }
    EXPECT_EQ(run("msglib").status, 2);
    EXPECT_EQ(run("msglib --version").output.rfind("msglib ", 0), 0U);
}

TEST_F(CompileCommandTest, WritesOneResourceScriptForAModule) {
    const std::string german = "LanguageNames=(German=0x407:G)\n";
    write("A.mc", good);
    write("B.mc", german + "MessageId=7\nLanguage=German\nsieben\n.\nLanguage=English\nseven\n.\n");
    ASSERT_EQ(compile("A.mc B.mc --output . --format rc").output, "");
    EXPECT_EQ(read("messages.rc"), "LANGUAGE 7, 1\n1 11 \"messages_0407.bin\"\n"
                                   "LANGUAGE 9, 1\n1 11 \"messages_0409.bin\"\n");
    EXPECT_EQ(read("messages_0407.bin"), std::string("\1\0\0\0\7\0\0\0\7\0\0\0\x10\0\0\0"
                                                     "\x18\0\1\0s\0i\0e\0b\0e\0n\0\r\0\n\0\0\0\0\0",
                                                     16 + 24));
    EXPECT_EQ(read("messages_0409.bin")[0], 3); // blocks
    EXPECT_EQ(read("A.cpp").find("asm"), std::string::npos);
    EXPECT_NE(read("B.cpp").find("void registerB() {"), std::string::npos);
}

TEST_F(CompileCommandTest, NamesFunctionsAfterFiles) {
    const struct {
        const char* file;
        const char* function;
    } rows[] = {
        {"app-messages.v2.mc", "registerAppMessagesV2"},
        {"Größe und Gewicht", "registerGrößeUndGewicht"},
        {"сообщения.mc", "registerсообщения"},
        {"€ ☂ 😀.mc", "registerMessages"},
        {"2 b.mc", "register2B"},
    };
    for (const auto& row : rows) {
        write(row.file, good);
        EXPECT_EQ(compile("'" + std::string(row.file) + "' --output out").output, "");
        const std::string stem = fs::path(row.file).stem().string();
        EXPECT_NE(read("out/" + stem + ".h").find("void " + std::string(row.function) + "();"),
                  std::string::npos)
            << stem;
    }
}

} // namespace
} // namespace zem::msglib::tool
