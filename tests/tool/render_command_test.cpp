// The commands `render` and `explain`, run as people run them.

#include "tool/Program.h"

#include <gtest/gtest.h>

#include <string>

namespace zem::msglib::tool {
namespace {

class RenderCommand : public FolderTest {
protected:
    void SetUp() override {
        FolderTest::SetUp();
        write("App.mc", "LanguageNames=(English=0x409:MSG00409)\n"
                        "LanguageNames=(German=0x407:MSG00407)\n"
                        "FacilityNames=(App=0x001)\n"
                        "; // @arg 0 files number\n"
                        "; // @arg 1 folder text\n"
                        "MessageId=1 Facility=App Severity=Informational\n"
                        "SymbolicName=MSG_COPIED\n"
                        "Language=English\n"
                        "{0,choice,0#None|1#One|1<{0}} in {1}\n"
                        "of it.\n"
                        ".\n"
                        "Language=German\n"
                        "{0} in {1}.\n"
                        ".\n"
                        "MessageId=2 Facility=App Severity=Error\n"
                        "SymbolicName=MSG_OLD\n"
                        "Language=German\n"
                        "Alt.\n"
                        ".\n"
                        "MessageId=300 Facility=App Severity=Error\n"
                        "Language=English\n"
                        "Plain.\n"
                        ".\n");
    }
};

struct CommandCase {
    int line;
    const char* words; ///< after the program's name
    int status;
    const char* output;
};

constexpr const char* english = "MSG_COPIED (0x40010001), English\n"
                                "  0 folder        None in folder↵of it.\n"
                                "  1 folder        One in folder↵of it.\n"
                                "  2 folder        2 in folder↵of it.\n"
                                "  7 folder        7 in folder↵of it.\n"
                                "  1234567 folder  1,234,567 in folder↵of it.\n"
                                "  1234.5 folder   1,234.50 in folder↵of it.\n";

TEST_F(RenderCommand, ShowsMessages) {
    const CommandCase cases[] = {
        {__LINE__, "render App.mc MSG_COPIED --language English", 0, english},
        {__LINE__, "render App.mc 0x40010001 --language 0x409", 0, english},
        {__LINE__, "render App.mc 1073807361 --language 1033", 0, english},
        {__LINE__, "render App.mc 1 --language english", 0, english},
        {__LINE__, "render App.mc MSG_COPIED 7 Büro", 0, "7 in Büro\nof it.\n"},
        {__LINE__, "render App.mc MSG_COPIED -1 check", 0, "None in check\nof it.\n"},
        {__LINE__, "render App.mc MSG_COPIED 1 '\"7\"'", 0, "One in 7\nof it.\n"},
        {__LINE__, "render App.mc MSG_COPIED 3 x --language German", 0, "3 in x.\n"},
        {__LINE__, "render App.mc MSG_OLD", 0,
         "MSG_OLD (0xC0010002)\n"
         "  note: no text in English (United States): programs show \"Invalid message ID\"\n"
         "\n"
         "MSG_OLD (0xC0010002), German\n"
         "  Alt.\n"},
        {__LINE__, "render App.mc 300", 0, "0xC001012C, English\n  Plain.\n"},
        {__LINE__, "render App.mc 300 --language German", 0,
         "0xC001012C\n  note: no text in this language\n"},
        {__LINE__, "render App.mc MSG_COPYED", 2,
         "msglib: error: App.mc has no message MSG_COPYED; did you mean MSG_COPIED?\n"},
        {__LINE__, "render App.mc 17", 2, "msglib: error: App.mc has no message 17\n"},
        {__LINE__, "render App.mc 1 --language Germn", 2,
         "msglib: error: App.mc has no text in the language Germn; did you mean German?\n"},
        {__LINE__, "render", 2, "msglib: error: name a file or a --pattern\n"},
    };
    for (const CommandCase& row : cases) {
        const Outcome outcome = run(std::string("msglib ") + row.words);
        EXPECT_EQ(outcome.output, row.output) << "line " << row.line;
        EXPECT_EQ(outcome.status, row.status) << "line " << row.line;
    }
    const std::string all = run("msglib render App.mc").output;
    EXPECT_EQ(all.substr(0, std::string(english).size()), english);
    EXPECT_NE(all.find("\n\n0xC001012C, English\n  Plain.\n"), std::string::npos);
}

TEST_F(RenderCommand, ShowsPatterns) {
    const CommandCase cases[] = {
        {__LINE__, "render --pattern '{0,date,long} {0,time}' 2026-11-23T13:30", 0,
         "Monday, November 23, 2026 1:30:00 PM\n"},
        {__LINE__, "render --pattern '{0}|{1}|{2}|{3}' 7 7.0 true a 'b c'", 0, "7|7.00|1|a\n"},
        {__LINE__, "render --pattern '{0}' 2026-02-30", 2,
         "msglib: error: argument 2026-02-30: there is no such date or time of day, or it is "
         "before "
         "1601; a text has to be in quotation marks\n"},
        {__LINE__, "render --pattern \"$(printf 'a\\344')\"", 2,
         "msglib: error: the pattern is not UTF-8\n"},
        {__LINE__, "render --pattern 'a{0,choice,0#b|1#c}' --color always", 0,
         "  \x1B[36m0\x1B[0m  ab\n  \x1B[36m1\x1B[0m  ac\n"},
        {__LINE__, "explain --pattern '{0,choice,0#a|1#b}'", 0,
         "argument 0 decides:\n"
         "  from 0, below 1, and everything lower:\n"
         "    text \"a\"\n"
         "  from 1:\n"
         "    text \"b\"\n"},
        {__LINE__, "explain App.mc 300", 0, "0xC001012C, English\ntext \"Plain.↵\"\n"},
        {__LINE__, "explain --pattern a b", 2,
         "msglib: error: --pattern takes the place of a file: there is nothing else to explain\n"},
    };
    for (const CommandCase& row : cases) {
        const Outcome outcome = run(std::string("msglib ") + row.words);
        EXPECT_EQ(outcome.output, row.output) << "line " << row.line;
        EXPECT_EQ(outcome.status, row.status) << "line " << row.line;
    }
}

// Standard output has only the text that a program shows in place of the message.
TEST_F(RenderCommand, ShowsFailuresAsTheLibraryReportsThem) {
    const CommandCase cases[] = {
        {__LINE__, "render App.mc MSG_COPIED text x", 1, "Argument is not a number.\n"},
        {__LINE__, "render App.mc MSG_COPIED 7", 1,
         "Argument index in format exceeds number of specified arguments\n"},
        {__LINE__, "render App.mc MSG_OLD 7", 1, "Invalid message ID\n"},
        {__LINE__, "render --pattern '{0,date}' x", 1, "Invalid date argument type\n"},
        {__LINE__, "render --pattern 'a{'", 1, "  fails: Illegal argument in format string\n"},
        {__LINE__, "render --pattern '{0,choice,0#a|1#b}}' 1", 1, "unexpected closing brace\n"},
    };
    for (const CommandCase& row : cases) {
        const Outcome outcome = run(std::string("msglib ") + row.words + " 2>errors");
        EXPECT_EQ(outcome.output, row.output) << "line " << row.line;
        EXPECT_EQ(outcome.status, row.status) << "line " << row.line;
        EXPECT_NE(read("errors"), "") << "line " << row.line;
    }
}

TEST_F(RenderCommand, ReportsErrorsOfTheFileAsTheCheckDoes) {
    write("Wrong.mc", "MessageId=1\nSymbolicName=A\nLanguage=English\n{0,choice,0#a|1#{x}} 'y'\n.\n"
                      "MessageId=2\nSymbolicName=B\nLanguage=English\nFine.\n.\n");
    const Outcome outcome = run("msglib render Wrong.mc A 2>errors");
    EXPECT_EQ(outcome.output, "A (0x00000001), English\n"
                              "  0  a y\n"
                              "  1  fails: Illegal argument in format string\n");
    EXPECT_EQ(outcome.status, 1);
    const std::string errors = read("errors");
    EXPECT_EQ(errors.substr(0, errors.find('\n')),
              "Wrong.mc:4:18: error: Illegal argument in format string [syntax]");
    EXPECT_EQ(errors.find("warning"), std::string::npos);

    write("Broken.mc", "MessageId=1\nLanguage=English\nno end\n");
    EXPECT_EQ(run("msglib render Broken.mc A 2>errors").status, 1);
    EXPECT_EQ(run("msglib explain Broken.mc 2>errors").status, 1);
}

} // namespace
} // namespace zem::msglib::tool
