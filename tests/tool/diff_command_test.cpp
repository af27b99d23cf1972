// The reported changes between two versions of a catalogue, and whether callers of the old one
// still fit.

#include "tool/Program.h"

#include <string>

namespace zem::msglib::tool {
namespace {

std::string message(const std::string& head, const std::string& text) {
    return "MessageId=" + head + "\nLanguage=English\n" + text + "\n.\n";
}

class DiffCommandTest : public FolderTest {
protected:
    Outcome diff(const std::string& arguments) const { return run("msglib diff " + arguments); }

    /// Compares two text files.
    Outcome diffOf(const std::string& before, const std::string& after) const {
        write("old.mc", before);
        write("new.mc", after);
        return diff("old.mc new.mc");
    }
};

TEST_F(DiffCommandTest, ReportsChangesAndWhetherTheyBreakCallers) {
    const std::string a = "1 SymbolicName=A";
    const std::string german = "LanguageNames=(German=0x407:G)\n";
    const struct {
        int line;
        std::string before;
        std::string after;
        const char* words; ///< of the output
        int status;
    } rows[] = {
        {__LINE__, message(a, "x"), "; comment\n" + message(a, "x"), "no changes\n", 0},
        {__LINE__, message(a, "x"), message(a, "x\n\ny"),
         "text        0x00000001  A\n  - x\n  + x\n  + \n  + y\n\n1 change, none breaks callers\n",
         0},
        {__LINE__, message(a, "x"), message(a, "x") + message("2 SymbolicName=B", "y"),
         "added       0x00000002  B\n  + y\n", 0},
        {__LINE__, message(a, "x") + message("2 SymbolicName=Long", "y"), message(a, "x"),
         "removed     0x00000002  Long  breaks callers\n  - y\n", 1},
        {__LINE__, message(a, "x"), message("2 SymbolicName=A", "x"),
         "renumbered  0x00000001  A  breaks callers: now 0x00000002\n\n1 change, 1 breaks", 1},
        {__LINE__, message(a, "x") + message("2 SymbolicName=B", "y"),
         message("2 SymbolicName=A", "x") + message("1 SymbolicName=B", "y"), "2 changes, 2 break",
         1},
        {__LINE__, message(a, "x"), message("1 SymbolicName=B", "x"), "removed     0x00000001  A",
         1},
        {__LINE__, message("1", "x"), message(a, "x"), "no changes", 0},
        {__LINE__, message("1", "x"), message("2", "x"), "2 changes, 1 breaks callers\n", 1},
        {__LINE__, message(a, "{0}"), message(a, "{0} {1}"), "argument 1 is new\n", 1},
        {__LINE__, "; @arg 1 folder\n" + message(a, "{0} {1}"), message(a, "{0}"),
         "arguments   0x00000001  A  breaks callers: argument 1 (folder) is gone\n", 1},
        {__LINE__, message(a, "{1} {0}"), message(a, "{0} {1}"), "1 change, none breaks", 0},
        {__LINE__, message(a, "{0,number}"), message(a, "{0}"),
         "arguments   0x00000001  A  argument 0 was number, is any\n", 0},
        {__LINE__, message(a, "{0}"), message(a, "{0,number}"), "was any, is number\n", 1},
        {__LINE__, message(a, "{0,number}"), message(a, "{0,date}"), "was number, is time", 1},
        {__LINE__, message(a, "{0,date}"), message(a, "{0,number}"), "was time, is number", 1},
        {__LINE__, message(a, "{0,date}"), message(a, "{0}"), "was time, is any", 1},
        {__LINE__, message(a, "{0,date}{0,number}"), message(a, "{0,date}"),
         "A  argument 0 was number and time, is time", 0},
        {__LINE__, message(a, "{0}"), "; @arg 0 who text\n" + message(a, "{0}"), "was any, is text",
         1},
        {__LINE__, message(a, "{0}"), message(a, "{0"), "it has a text that does not compile", 1},
        {__LINE__, message(a, "{0"), message(a, "{0}"), "A  it can be called now", 0},
        {__LINE__, german + message(a, "x") + "MessageId=1\nLanguage=German\ny\n.\n",
         message(a, "x"), "text        0x00000001  A\n  0x0407:\n  - y\n", 0},
        {__LINE__, message(a, "x"), german + "MessageId=1 SymbolicName=A\nLanguage=German\nx\n.\n",
         "it has no text in English (United States)\n", 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        expect(diffOf(row.before, row.after), row.status, row.words);
    }
}

TEST_F(DiffCommandTest, ComparesTextsWithTables) {
    write("App.mc", "; @arg 0 who text\n" + message("1 SymbolicName=A", "Größe\n{0}"));
    ASSERT_EQ(run("msglib compile App.mc --output . --format rc").output, "");
    EXPECT_EQ(diff("App.mc messages_0409.bin").output, "no changes\n");
    EXPECT_EQ(diff("messages_0409.bin messages_0409.bin").output, "no changes\n");
    write("New.mc", message("1 SymbolicName=A", "Größe\n"));
    EXPECT_EQ(diff("messages_0409.bin New.mc").output,
              "arguments   0x00000001  breaks callers: argument 0 is gone\n"
              "text        0x00000001\n  - Größe\n  - {0}\n  + Größe\n  + \n\n"
              "2 changes, 1 breaks callers\n");
    EXPECT_NE(diff("App.mc New.mc --format json").output.find(R"("arguments": [
      "text"
    ],
    "newArguments": [])"),
              std::string::npos);
    EXPECT_NE(diff("App.mc New.mc --color always").output.find("\x1B[1;31m  - {0}\x1B[0m\n"),
              std::string::npos);
    EXPECT_EQ(run("cat App.mc | msglib diff - App.mc").output, "no changes\n");
}

TEST_F(DiffCommandTest, RefusesFilesThatCannotBeRead) {
    write("Good.mc", message("1", "x"));
    write("Wrong.mc", "MessageId=1\n");
    write("Warned.mc", message("1 SymbolicName=EOF", "x"));
    const unsigned char outside[] = {1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 0xFF, 0, 0, 0};
    write("damaged", {std::begin(outside), std::end(outside)});
    const struct {
        int line;
        const char* arguments;
        int status;
        const char* words;
    } rows[] = {
        {__LINE__, "Good.mc Wrong.mc", 2, "Wrong.mc:1:1: error: the message has no text"},
        {__LINE__, "Good.mc Warned.mc", 0, "no changes"},
        {__LINE__, "Good.mc missing", 2, "missing: cannot be read"},
        {__LINE__, "Good.mc damaged", 2, "damaged: this is not a message table, or a damaged one"},
        {__LINE__, "Good.mc", 2, "NEW is required"},
        {__LINE__, "--help", 0, "git show v1.0:App.mc"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        expect(diff(row.arguments), row.status, row.words);
    }
}

} // namespace
} // namespace zem::msglib::tool
