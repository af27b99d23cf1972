// The output of a build for common mistakes of authors: one diagnostic for each, with its source
// line and a caret.

#include "tool/Program.h"

#include <gtest/gtest.h>

#include <string>

namespace zem::msglib::tool {
namespace {

struct Mistake {
    int line;
    std::string app;  ///< the whole of App.mc
    std::string more; ///< the whole of More.mc
    bool stopsBuild;
    std::string output; ///< of the build
};

std::string message(const std::string& pattern) {
    return "MessageId=1\nSymbolicName=MSG_APP\nLanguage=English\n" + pattern + "\n.\n";
}

std::string utf16(const std::string& ascii) {
    std::string bytes = "\xFF\xFE";
    for (const char byte : ascii) {
        bytes += {byte, '\0'};
    }
    return bytes;
}

const std::string fine = "MessageId=2\nSymbolicName=MSG_MORE\nLanguage=English\nfine\n.\n";

const Mistake mistakes[] = {
    {__LINE__, message("{0 files"), fine, true,
     "App.mc:4:9: error: Illegal argument in format string [syntax]\n"
     "    4 | {0 files\n"
     "      |         ^\n"
     "App.mc:4:1: note: this brace is not closed\n"
     "    4 | {0 files\n"
     "      | ^\n"},
    {__LINE__, message("{0,Number} files"), fine, false,
     "App.mc:4:4: warning: `Number` is not a type: this shows what `{0}` shows [unknown-type]\n"
     "    4 | {0,Number} files\n"
     "      |    ^~~~~~\n"
     "App.mc:4:4: note: did you mean `number`?\n"},
    {__LINE__, message("{0, number} files"), fine, false,
     "App.mc:4:4: warning: ` number` is not a type: this shows what `{0}` shows [unknown-type]\n"
     "    4 | {0, number} files\n"
     "      |    ^~~~~~~\n"
     "App.mc:4:4: note: did you mean `number`?\n"},
    {__LINE__, message("On {0,date,EEEE}"), fine, false,
     "App.mc:4:12: warning: `EEEE` is not a date letter; the day's name is `dddd` [date-letter]\n"
     "    4 | On {0,date,EEEE}\n"
     "      |            ^~~~\n"},
    {__LINE__, message("At {0,time,short}"), fine, false,
     "App.mc:4:12: warning: `short` is not a style of `time` and is read as a pattern "
     "[time-style]\n"
     "    4 | At {0,time,short}\n"
     "      |            ^~~~~\n"
     "App.mc:4:12: note: leave the style out, or write a pattern such as `HH:mm`\n"},
    {__LINE__, message("{0,choice,1#one file|0#no file}"), fine, false,
     "App.mc:4:22: warning: this limit is lower than the one before it: limits have to ascend "
     "[choice-order]\n"
     "    4 | {0,choice,1#one file|0#no file}\n"
     "      |                      ^\n"
     "App.mc:4:11: note: the limit before it\n"
     "    4 | {0,choice,1#one file|0#no file}\n"
     "      |           ^\n"},
    {__LINE__, message("{0,choice,0#none|1#they're here}"), fine, false,
     "App.mc:4:24: warning: in a choice, this apostrophe takes \"r\" and drops \"e\" after it: "
     "shows \"theyr\" [choice-quote]\n"
     "    4 | {0,choice,0#none|1#they're here}\n"
     "      |                        ^~~\n"
     "App.mc:4:24: note: write ’ (U+2019), or 4 apostrophes at this depth\n"},
    {__LINE__, message("{0,number,0 Plätze} frei"), fine, true,
     "App.mc:4:15: error: \"ä\" has the byte A4, which is the currency sign in a decimal pattern: "
     "what is shown is not UTF-8 [invalid-encoding]\n"
     "    4 | {0,number,0 Plätze} frei\n"
     "      |               ^\n"
     "App.mc:4:15: note: write the text after the placeholder\n"},
    {__LINE__, message("Copied %1"), fine, false,
     "App.mc:4:8: warning: `%1` is shown unchanged [foreign-insert]\n"
     "    4 | Copied %1\n"
     "      |        ^~\n"
     "App.mc:4:8: note: arguments are counted from 0: write `{0}`\n"},
    {__LINE__, "MessageId=1 Facility=Sistem Language=English\nfine\n.\n", fine, true,
     "App.mc:1:22: error: there is no facility Sistem [file-syntax]\n"
     "    1 | MessageId=1 Facility=Sistem Language=English\n"
     "      |                      ^~~~~~\n"
     "App.mc:1:22: note: did you mean System?\n"},
    {__LINE__, message("fine"), "MessageId=1 SymbolicName=MSG_MORE\nLanguage=English\nfine\n.\n",
     true,
     "More.mc:1:11: error: MSG_MORE (0x00000001) comes twice in the language English "
     "[duplicate-id]\n"
     "    1 | MessageId=1 SymbolicName=MSG_MORE\n"
     "      |           ^\n"
     "App.mc:1:11: note: the first one, MSG_APP (0x00000001), is here\n"
     "    1 | MessageId=1\n"
     "      |           ^\n"},
    {__LINE__, utf16(message("{0,Number} files")), fine, false,
     "App.mc:4:4: warning: `Number` is not a type: this shows what `{0}` shows [unknown-type]\n"
     "    4 | {0,Number} files\n"
     "      |    ^~~~~~\n"
     "App.mc:4:4: note: did you mean `number`?\n"},
    {__LINE__, utf16(message("fine")) + "x", fine, true,
     "App.mc:6:1: error: the byte 0x78 is not valid UTF-16LE here [file-encoding]\n"
     "    6 | \n"
     "      | ^\n"
     "App.mc:6:1: note: name the encoding of the file, as in --encoding CP1252\n"},
};

/// Returns the lines of a build that are about a file of messages: `file:line:column:`, and the
/// lines with the source and the caret.
std::string diagnosticsIn(const std::string& output, const std::string& folder) {
    std::string found;
    for (std::size_t begin = 0; begin < output.size();) {
        const std::size_t end = std::min(output.find('\n', begin), output.size() - 1) + 1;
        std::string line = output.substr(begin, end - begin);
        begin = end;
        if (line.compare(0, folder.size(), folder) == 0) {
            found += line.substr(folder.size());
        } else if (line.find(" | ") == 5) {
            found += line;
        }
    }
    return found;
}

using MistakesTest = FolderTest;

TEST_F(MistakesTest, BuildPrintsOneDiagnosticForEach) {
    const auto source = folder_ / "source";
    std::filesystem::copy(MISTAKES, source);
    write("source/App.mc", message("fine"));
    write("source/More.mc", fine);
    const Outcome configured = run("cmake -G Ninja -S source -B build -D ROOT=" + quoted(ROOT) +
                                   " -D MSGLIB_TOOL=" + quoted(PROGRAM));
    ASSERT_EQ(configured.status, 0) << configured.output;
    for (const Mistake& mistake : mistakes) {
        SCOPED_TRACE(mistake.line);
        write("source/App.mc", mistake.app);
        write("source/More.mc", mistake.more);
        const Outcome built = run("cmake --build build --target messages_catalogues");
        EXPECT_EQ(built.status != 0, mistake.stopsBuild) << built.output;
        EXPECT_EQ(diagnosticsIn(built.output, source.string() + "/"), mistake.output)
            << built.output;
    }
}

} // namespace
} // namespace zem::msglib::tool
