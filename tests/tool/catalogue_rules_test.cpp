// The rules about several messages, over all files that are checked together, and comments that
// allow them.

#include "tool/Reading.h"
#include "tool/text/CannotRun.h"

#include <gtest/gtest.h>

namespace zem::msglib::tool {
namespace {

/// Returns a message with a number, more statements in its head, and its text.
std::string message(const std::string& number, const std::string& head = "",
                    const std::string& language = "English") {
    return "MessageId=" + number + " " + head + "\nLanguage=" + language + "\nx\n.\n";
}

TEST(CatalogueRulesTest, ChecksAllFilesTogether) {
    const std::string names = "FacilityNames=(A=0x12 B=0x812) LanguageNames=(German=0x407:G)\n";
    const struct {
        int line;
        std::vector<std::string> files;
        std::string diagnostics;
    } rows[] = {
        {__LINE__, {message("1", "SymbolicName=A"), message("2", "SymbolicName=B")}, ""},
        // identifiers
        {__LINE__,
         {message("1", "SymbolicName=A") + message("1")},
         "5:11-12 duplicate-id: 0x00000001 comes twice in the language English (1:11-12 the first "
         "one, A (0x00000001), is here)\n"},
        {__LINE__,
         {message("1"), message("0x1")},
         "1.mc:1:11-14 duplicate-id: 0x00000001 comes twice in the language English (1:11-12 the "
         "first one, 0x00000001, is here)\n"},
        {__LINE__,
         {message("1") + "Language=English\ny\n.\n"},
         "5:10-17 duplicate-id: 0x00000001 comes twice in the language English (2:10-17 the first "
         "one, 0x00000001, is here)\n"},
        {__LINE__, {message("1", "Severity=Error") + message("1", "Severity=Warning")}, ""},
        {__LINE__, {names + message("1") + message("1", "", "German")}, ""},
        // symbols
        {__LINE__,
         {message("1", "SymbolicName=A") + message("2", "SymbolicName=A")},
         "5:26-27 duplicate-symbol: this symbolic name already stands for 0x00000001, and here for "
         "0x00000002 (1:26-27 the first one is here)\n"},
        {__LINE__,
         {names + message("1", "SymbolicName=A") + message("1", "SymbolicName=A", "German")},
         ""},
        {__LINE__,
         {message("1", "SymbolicName=A"), names + message("1", "SymbolicName=A", "German")},
         "1.mc:2:26-27 duplicate-symbol: another catalogue has this symbolic name (1:26-27 the "
         "first one is here)\n1.mc:3:10-16 language-unused: the file has no text in English "
         "(United States), 0x409: none of its messages is ever found\n"},
        {__LINE__, {message("1", "SymbolicName=A") + message("2", "SymbolicName=a")}, ""},
        // facilities
        {__LINE__,
         {names + message("1", "Facility=A"),
          names + message("1", "Facility=B") + message("2", "Facility=B")},
         "1.mc:2:1-10 facility-clash: the facilities of 0x08120001 and 0x00120001 select the same "
         "module, since they differ only in bit 27 (2:1-10 the other message is here)\n"},
        {__LINE__, {names + message("1", "Facility=B")}, ""},
        // names that are reserved in C++
        {__LINE__,
         {message("1", "SymbolicName=default") + message("2", "SymbolicName=EOF") +
          message("3", "SymbolicName=_A") + message("4", "SymbolicName=a__b") +
          message("5", "SymbolicName=Default") + message("6", "SymbolicName=_a")},
         "1:26-33 reserved-symbol: this is a keyword of C++, not a name for a constant\n"
         "5:26-29 reserved-symbol: this is a macro of the C library\n"
         "9:26-28 reserved-symbol: names with such underscores are reserved for the compiler\n"
         "13:26-30 reserved-symbol: names with such underscores are reserved for the compiler\n"},
        // messages with errors cause no further diagnostics
        {__LINE__,
         {message("1") + message("1", "Severity=X") + message("1", "", "Swedish")},
         "5:22-23 file-syntax: there is no severity X (declare it before the message: "
         "SeverityNames=(X=number))\n10:10-17 file-syntax: there is no language Swedish (declare "
         "it before the message: LanguageNames=(Swedish=number:file))\n"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(dump(readAll(row.files).diagnostics), row.diagnostics);
    }
}

TEST(CatalogueRulesTest, ObeysAllowancesInComments) {
    const std::string reserved = message("1", "SymbolicName=EOF");
    const struct {
        int line;
        std::string file;
        std::string diagnostics;
    } rows[] = {
        {__LINE__, "; // msglib: allow reserved-symbol\n" + reserved, ""},
        {__LINE__, ";msglib:allow language-unused,reserved-symbol\n" + reserved,
         "1:15-30 unused-allow: nothing to allow: the message has no diagnostic of this rule\n"},
        {__LINE__,
         "MessageId=1\n; // msglib: allow reserved-symbol\nSymbolicName=EOF\n"
         "Language=English\nx\n.\n",
         ""},
        {__LINE__, reserved + "; // msglib: allow reserved-symbol\n" + message("2"),
         "1:26-29 reserved-symbol: this is a macro of the C library\n5:20-35 unused-allow: nothing "
         "to allow: the message has no diagnostic of this rule\n"},
        {__LINE__, "; // msglib: allow reserved-symbol reserved-symbol\n" + reserved,
         "1:36-51 unused-allow: the message already allows this rule\n"},
        {__LINE__, "; // msglib: allow file-syntax other\n" + message("1"),
         "1:20-31 unused-allow: this rule cannot be allowed\n1:32-37 unused-allow: there is no "
         "such rule\n"},
        {__LINE__, "; // msglib: allow unused-allow language-unused\n" + message("1"),
         "1:20-32 unused-allow: nothing to allow: the message has no diagnostic of this rule\n"
         "1:33-48 unused-allow: nothing to allow: the message has no diagnostic of this rule\n"},
        {__LINE__,
         "; // msglib: alow EOF\n; // msglib:\n; // msglib: no-line-end x\n" + message("1"),
         "1:14-18 file-syntax: a comment can ask for \"allow RULE\" or \"no-line-end\"\n2:6-13 "
         "file-syntax: a comment can ask for \"allow RULE\" or \"no-line-end\"\n3:14-25 "
         "file-syntax: a comment can ask for \"allow RULE\" or \"no-line-end\"\n"},
        {__LINE__, message("1") + "; // msglib: allow reserved-symbol\n",
         "5:14-19 unused-allow: no message follows\n"},
        {__LINE__, "; msglib is fine, msglib: too\n" + message("1"), ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(dump(readAll({row.file}).diagnostics), row.diagnostics);
    }
}

TEST(CatalogueRulesTest, ChangesSeveritiesByOptions) {
    const std::string file = "LanguageNames=(German=0x407:G)\n; // msglib: allow file-syntax\n" +
                             message("1", "SymbolicName=EOF", "German");
    const auto severities = [&](const SeverityPolicy& policy) {
        std::string out;
        for (const Diagnostic& diagnostic : readAll({file}, policy).diagnostics) {
            out += std::string(diagnostic.rule->name) + " " +
                   std::to_string(static_cast<int>(diagnostic.severity)) + "\n";
        }
        return out;
    };
    EXPECT_EQ(severities({}), "unused-allow 2\nreserved-symbol 2\nlanguage-unused 1\n");
    EXPECT_EQ(severities({{}, {"warnings"}}),
              "unused-allow 3\nreserved-symbol 3\nlanguage-unused 1\n");
    EXPECT_EQ(severities({{"unused-allow"}, {"language-unused"}}),
              "reserved-symbol 2\nlanguage-unused 3\n");
    EXPECT_EQ(severities({{"reserved-symbol"}, {"reserved-symbol", "warnings"}}),
              "unused-allow 3\nlanguage-unused 1\n");
    EXPECT_THROW(SeverityPolicy({"no-rule"}, {}), CannotRun);
    EXPECT_THROW(SeverityPolicy({}, {"no-rule"}), CannotRun);
    EXPECT_THROW(SeverityPolicy({"file-syntax"}, {}), CannotRun);
}

} // namespace
} // namespace zem::msglib::tool
