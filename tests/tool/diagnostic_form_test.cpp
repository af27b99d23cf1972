// The output forms of diagnostics.

#include "tool/Reading.h"
#include "tool/diagnostics/DiagnosticJson.h"
#include "tool/diagnostics/DiagnosticText.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace zem::msglib::tool {
namespace {

const std::string file = "MessageId=1 Severity=Error SymbolicName=EOF\n"
                         "Language=English\nx\n.\n"
                         "\t;\n; né\nMessageId=1 Severity=Error ;\xF0\x9D\x84\x9E\n"
                         "Language=English\nx\n.\n"
                         "MessageId=2 Severity=Erorr\n"
                         "Language=English\nx\n.\n";

TEST(DiagnosticFormTest, TextHasLineAndCaret) {
    EXPECT_EQ(textOf(readAll({file}).diagnostics, false),
              R"(0.mc:1:41: warning: this is a macro of the C library [reserved-symbol]
    1 | MessageId=1 Severity=Error SymbolicName=EOF
      |                                         ^~~
0.mc:7:11: error: 0xC0000001 comes twice in the language English [duplicate-id]
    7 | MessageId=1 Severity=Error ;𝄞
      |           ^
0.mc:1:11: note: the first one, EOF (0xC0000001), is here
    1 | MessageId=1 Severity=Error SymbolicName=EOF
      |           ^
0.mc:11:22: error: there is no severity Erorr [file-syntax]
   11 | MessageId=2 Severity=Erorr
      |                      ^~~~~
0.mc:11:22: note: did you mean Error?
)");
}

/// Returns the excerpt of a diagnostic about `length` bytes from the first "!" of a line on.
std::string excerpt(const std::string& line, std::size_t length) {
    const SourceFile source("x", "\n" + line + "\n");
    Diagnostics diagnostics;
    diagnostics.report(rules::fileSyntax, {&source, line.find('!') + 1, length}, "words");
    const std::string text = textOf(diagnostics.take(), false);
    return text.substr(text.find('\n') + 1);
}

TEST(DiagnosticFormTest, CaretStaysBelowItsPlace) {
    const std::string filler(300, 'x');
    const struct {
        int line;
        std::string text;
        std::size_t length;
        std::string excerpt;
    } rows[] = {
        {__LINE__, "ab!", 0, "    2 | ab!\n      |   ^\n"},
        {__LINE__, "a\tb!c", 2, "    2 | a\tb!c\n      |  \t ^~\n"},
        {__LINE__, "äöü!€𝄞", 8, "    2 | äöü!€𝄞\n      |    ^~~\n"},
        {__LINE__, "\x1B[m\x7F\u0085!", 1, "    2 | \uFFFD[m\uFFFD\uFFFD!\n      |      ^\n"},
        // places that go beyond their line
        {__LINE__, "!b", 4, "    2 | !b\n      | ^~\n"},
        // long lines
        {__LINE__, filler + "!" + filler, 3,
         "    2 | …" + std::string(100, 'x') + "!" + std::string(39, 'x') + "…\n      |  " +
             std::string(100, ' ') + "^~~\n"},
        {__LINE__, "!" + filler, 301,
         "    2 | !" + std::string(139, 'x') + "…\n      | ^" + std::string(139, '~') + "\n"},
        {__LINE__, filler + "!", 1,
         "    2 | …" + std::string(100, 'x') + "!\n      |  " + std::string(100, ' ') + "^\n"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(excerpt(row.text, row.length), row.excerpt);
    }
}

TEST(DiagnosticFormTest, ColoursWrapParts) {
    const std::string text = textOf(readAll({"Foo"}).diagnostics, true);
    EXPECT_EQ(text,
              "\x1B[1m0.mc:1:1: \x1B[0m\x1B[1;31merror: \x1B[0ma keyword such as MessageId is "
              "expected here [file-syntax]\n    1 | Foo\n      | \x1B[1;32m^~~\x1B[0m\n");
}

TEST(DiagnosticFormTest, MsvcHasPositionsInParentheses) {
    EXPECT_EQ(msvcTextOf(readAll({file}).diagnostics),
              "0.mc(1,41): warning reserved-symbol: this is a macro of the C library\n"
              "0.mc(7,11): error duplicate-id: 0xC0000001 comes twice in the language English\n"
              "0.mc(1,11): note: the first one, EOF (0xC0000001), is here\n"
              "0.mc(11,22): error file-syntax: there is no severity Erorr\n"
              "0.mc(11,22): note: did you mean Error?\n");
}

TEST(DiagnosticFormTest, JsonHasAllMembers) {
    const auto all = nlohmann::json::parse(jsonOf(readAll({file}).diagnostics));
    ASSERT_EQ(all.size(), 3U);
    EXPECT_EQ(all[1], nlohmann::json::parse(R"({
        "file": "0.mc", "line": 7, "column": 11, "endLine": 7, "endColumn": 12,
        "severity": "error", "rule": "duplicate-id",
        "message": "0xC0000001 comes twice in the language English",
        "notes": [{"file": "0.mc", "line": 1, "column": 11, "endLine": 1, "endColumn": 12,
                   "message": "the first one, EOF (0xC0000001), is here"}]})"));
    EXPECT_EQ(jsonOf({}), "[]\n");
}

TEST(DiagnosticFormTest, SarifRefersToRules) {
    const SourceFile source("/a b/ä.mc", "x");
    Diagnostics diagnostics;
    diagnostics.report(rules::languageUnused, {&source, 0, 1}, "words", {{"more"}});
    const auto log = nlohmann::json::parse(sarifOf(diagnostics.take()));
    EXPECT_EQ(log["version"], "2.1.0");
    const auto& run = log["runs"][0];
    EXPECT_EQ(run["columnKind"], "unicodeCodePoints");
    EXPECT_EQ(run["tool"]["driver"]["name"], "msglib");
    const auto& knownRules = run["tool"]["driver"]["rules"];
    ASSERT_EQ(knownRules.size(), allRules().size());
    for (const auto& rule : knownRules) {
        EXPECT_FALSE(rule["shortDescription"]["text"].get<std::string>().empty());
        EXPECT_FALSE(rule["fullDescription"]["text"].get<std::string>().empty());
    }
    const auto& result = run["results"][0];
    EXPECT_EQ(result["ruleId"], "language-unused");
    EXPECT_EQ(knownRules[result["ruleIndex"].get<std::size_t>()]["id"], "language-unused");
    EXPECT_EQ(result["level"], "note");
    const auto& place = result["locations"][0]["physicalLocation"];
    EXPECT_EQ(place["artifactLocation"]["uri"], "file:///a%20b/%C3%A4.mc");
    EXPECT_EQ(place["region"], nlohmann::json::parse(R"({"startLine": 1, "startColumn": 1,
                                                         "endLine": 1, "endColumn": 2})"));
    EXPECT_EQ(result["relatedLocations"][0]["message"]["text"], "more");
}

} // namespace
} // namespace zem::msglib::tool
