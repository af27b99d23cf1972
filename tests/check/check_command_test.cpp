// The commands `check`, `rules` and `explain-rule`, run as people and builds run them.

#include "tool/Program.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

namespace zem::msglib::tool {
namespace {

class CheckCommand : public FolderTest {};

std::string contentOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// The output for wrong catalogues is in the files beside them, which the documentation shows.
TEST_F(CheckCommand, ReportsWrongCatalogues) {
    const std::string wrong = EXAMPLES_FOLDER "/wrong/";
    for (const char* const name : {"FirstMistakes", "WrongMessages"}) {
        const Outcome outcome =
            run("cp " + quoted(wrong + name + ".mc") + " . && msglib check " + name + ".mc");
        EXPECT_EQ(outcome.output, contentOf(wrong + name + ".output"));
    }
}

TEST_F(CheckCommand, AcceptsTheExamples) {
    const std::string desktop = EXAMPLES_FOLDER "/desktop/";
    const Outcome outcome = run("cd " + quoted(desktop) + " && msglib check DesktopMessages.mc" +
                                " backup/BackupMessages.mc ledger/LedgerMessages.mc");
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.status, 0);
}

// The texts of a message may be in heads of their own, and in several files.
TEST_F(CheckCommand, ComparesTranslationsWhereverTheyAre) {
    write("English.mc", "MessageId=1 Language=English\n{0} {1}\n.\n");
    write("German.mc", "LanguageNames=(German=0x407:G)\nMessageId=1 Language=German\n{0} {2}\n.\n");
    const Outcome outcome = run("msglib check English.mc German.mc --allow language-unused");
    EXPECT_EQ(outcome.output, "German.mc:3:6: warning: the text in 0x409 does not use argument 2 "
                              "[translation-arguments]\n"
                              "    3 | {0} {2}\n"
                              "      |      ^\n");
}

TEST_F(CheckCommand, ChecksPatternsOutsideOfCatalogues) {
    const Outcome pattern = run("msglib check --pattern '{0}' --pattern '{x}'");
    EXPECT_EQ(pattern.output, "pattern:1:2: error: Illegal argument in format string [syntax]\n"
                              "    1 | {x}\n"
                              "      |  ^\n"
                              "pattern:1:2: note: arguments have numbers, counted from 0: `{0}`\n"
                              "pattern:1:2: note: to show the brace, write `'{'`\n");
    EXPECT_EQ(pattern.status, 1);
    write("patterns", "{0}\n\na}b\n{0,Number}");
    const std::string found =
        "patterns:3:2: error: unexpected closing brace [syntax]\n"
        "    3 | a}b\n"
        "      |  ^\n"
        "patterns:3:2: note: to show the brace, write `'}'`\n"
        "patterns:4:4: warning: `Number` is not a type: this shows what `{0}` "
        "shows [unknown-type]\n"
        "    4 | {0,Number}\n"
        "      |    ^~~~~~\n"
        "patterns:4:4: note: did you mean `number`?\n";
    EXPECT_EQ(run("msglib check --lines patterns").output, found);
    EXPECT_EQ(run("msglib check --lines - < patterns").status, 1);
    EXPECT_EQ(run("msglib check --pattern \"$(printf 'a\\344')\"").status, 1);
}

TEST_F(CheckCommand, ObeysAllowAndDeny) {
    EXPECT_EQ(run("msglib check --pattern '{0,Number}'").status, 0);
    EXPECT_EQ(run("msglib check --pattern '{0,Number}' --deny warnings").status, 1);
    EXPECT_EQ(run("msglib check --pattern '{0,Number}' --deny unknown-type").status, 1);
    EXPECT_EQ(run("msglib check --pattern '{0,Number}' --allow unknown-type").output, "");
    EXPECT_EQ(run("msglib check --pattern '{x}' --allow file-syntax").status, 2);
    EXPECT_EQ(run("msglib check --pattern '{0}{2}'").output, "");
    EXPECT_EQ(run("msglib check --pattern '{0}{2}' --deny unused-argument").status, 1);
}

TEST_F(CheckCommand, AllowsRulesInOneMessage) {
    const std::string message = "MessageId=\nLanguage=English\nPress 'y' or %1 or %2.\n.\n";
    write("A.mc", "; // msglib: allow quote-vanishes foreign-insert\n" + message + message);
    const Outcome outcome = run("msglib check A.mc --format msvc");
    EXPECT_EQ(outcome.output,
              "A.mc(8,7): warning quote-vanishes: apostrophes around one character quote it and "
              "are not shown\n"
              "A.mc(8,7): note: write ’ (U+2019) for an apostrophe that is shown\n"
              "A.mc(8,14): warning foreign-insert: `%1` is shown unchanged\n"
              "A.mc(8,14): note: arguments are counted from 0: write `{0}`\n");
}

TEST_F(CheckCommand, ExplainsRules) {
    EXPECT_NE(run("msglib rules").output.find("\nchoice-quote "), std::string::npos);
    EXPECT_NE(run("msglib explain-rule syntax").output.find("{0,number,0 EUR}"), std::string::npos);
    const Outcome unknown = run("msglib explain-rule choice-qoute");
    EXPECT_EQ(unknown.output,
              "msglib: error: there is no rule choice-qoute; did you mean choice-quote?\n");
    EXPECT_EQ(unknown.status, 2);
}

TEST_F(CheckCommand, NeedsSomethingToCheck) {
    EXPECT_EQ(run("msglib check").status, 2);
    EXPECT_EQ(run("msglib check missing.mc").status, 2);
    EXPECT_EQ(run("msglib check --lines missing").status, 2);
}

// A build with mistakes prints each one with file, line, column, caret and rule.
TEST_F(CheckCommand, StopsBuilds) {
    write("CMakeLists.txt", "cmake_minimum_required(VERSION 3.25)\n"
                            "project(wrong LANGUAGES CXX)\n"
                            "include(\"" SOURCE_FOLDER "/cmake/MsglibCatalogue.cmake\")\n"
                            "add_library(app OBJECT app.cpp)\n"
                            "msglib_add_catalogue(app Messages.mc More.mc Utf16.mc)\n");
    write("app.cpp", "");
    write("Messages.mc", contentOf(EXAMPLES_FOLDER "/wrong/WrongMessages.mc"));
    write("More.mc", "FacilityNames=(App=0x010)\n"
                     "MessageId=3 Severity=Error Facility=App\n"
                     "Language=English\nTwice.\n.\n");
    std::string utf16 = "\xFF\xFE";
    for (const char byte : std::string("MessageId=20\nLanguage=English\n{0\n.\n")) {
        utf16 += {byte, '\0'};
    }
    write("Utf16.mc", utf16);
    ASSERT_EQ(run("cmake -S . -B build -D MSGLIB_TOOL=" + quoted(PROGRAM)).status, 0);
    const Outcome outcome = run("cmake --build build");
    EXPECT_NE(outcome.status, 0);
    for (const char* const line : {
             "Messages.mc:9:29: error: Illegal argument in format string [syntax]\n"
             "    9 | {0 files were copied to {1}.\n"
             "      |                             ^\n",
             "Messages.mc:14:4: warning: `Number` is not a type: this shows what `{0}` shows "
             "[unknown-type]\n"
             "   14 | {0,Number} of {1} files.\n"
             "      |    ^~~~~~\n",
             "Messages.mc:19:4: warning: ` number` is not a type",
             "Messages.mc:24:12: warning: `EEEE` is not a date letter; the day's name is `dddd` "
             "[date-letter]\n",
             "Messages.mc:29:12: warning: `short` is not a style of `time` and is read as a "
             "pattern "
             "[time-style]\n",
             "Messages.mc:34:22: warning: this limit is lower than the one before it: limits have "
             "to ascend [choice-order]\n",
             "Messages.mc:39:34: warning: in a choice, this apostrophe takes \"s\" and drops the "
             "blank after it: shows \"itsfree\" [choice-quote]\n"
             "   39 | {0,choice,0#none|1#{1,choice,0#it''s free|1#that''s {0}}}, they're {2}\n"
             "      |                                  ^~~~\n",
             "Messages.mc:44:15: error: \"ä\" has the byte A4",
             "Messages.mc:49:8: warning: `%1` is shown unchanged [foreign-insert]\n",
             "Messages.mc:52:38: error: there is no facility Ap [file-syntax]\n",
             "Utf16.mc:3:3: error: Illegal argument in format string [syntax]\n"
             "    3 | {0\n"
             "      |   ^\n",
         }) {
        EXPECT_NE(outcome.output.find(line), std::string::npos) << line << outcome.output;
    }
    EXPECT_NE(outcome.output.find("More.mc:2:11: error: "), std::string::npos) << outcome.output;
    EXPECT_NE(outcome.output.find("[duplicate-id]"), std::string::npos);
}

} // namespace
} // namespace zem::msglib::tool
