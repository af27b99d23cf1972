// Checks the examples of the documentation. Examples that fail for their syntax must be errors.
// Surprising examples must have a diagnostic, or be listed below as correct.

#include "check/Checking.h"
#include "support/CheckedTables.h"
#include "tool/text/Unicode.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace zem::msglib::tool {
namespace {

constexpr const char* pages[] = {"/message-patterns.md", "/choice-patterns.md", "/date-patterns.md",
                                 "/decimal-patterns.md", "/failures.md"};

/// Returns the pattern of a row as a message. The pattern of a formatter becomes a style.
std::string messageOf(const CheckedRow& row) {
    std::string pattern = bytesOf(row.cells[0]);
    if (row.kind == "message") {
        return pattern;
    }
    return "{0," + (row.kind == "decimal" || row.kind == "long" ? "number" : row.kind) + "," +
           pattern + "}";
}

// Surprising rows that are correct, or wrong only with certain arguments.
const std::set<std::string> deserveNone = {
    // The argument decides, or the pattern has only one reasonable meaning.
    "`{0}`",
    "`{0,number,percent}`",
    "`{0,time,yyyy}`",
    "`{0,choice,0#it''s}`",
    "`ss`",
    "`yyyy`",
    "`0.00`",
    "`0‰`",
    "` 2 # b`",
    "`0#a#b<c`",
    "`yyyy-MM-ddTHH:mm`",
    "`yyy yyyyyy`",
    "`ggg`",
    "`0.`",
    "`#,#,##0`",
    "`0,`",
    "`0 m²`",
    "`0 Äpfel`",
    "`{0,number,#,##0.00}`",
    // Apostrophes that the row before recommends, or that texts have around a placeholder.
    "`the '{0}' file`",
    "`{0,number,0 'E'UR}`",
    "`0 'E'UR`",
    "`0 a'.'m'.'`",
    "`0'%'`",
    "`''''`",
};

TEST(CheckedDocs, SurprisesHaveDiagnostics) {
    std::set<std::string> seen;
    for (const char* const page : pages) {
        for (const CheckedRow& row : checkedRowsOf(DOCS_FOLDER + std::string(page))) {
            const std::string pattern = messageOf(row);
            if (row.section == "Surprises" && validUtf8Length(pattern) == pattern.size()) {
                const bool isListed = deserveNone.count(row.cells[0]) != 0;
                seen.insert(row.cells[0]);
                EXPECT_EQ(rulesOf(pattern).empty(), isListed)
                    << page << ":" << row.line << " " << pattern;
            }
        }
    }
    for (const std::string& listed : deserveNone) {
        EXPECT_EQ(seen.count(listed), 1U) << listed;
    }
}

TEST(CheckedDocs, ErrorsAreExactlyTheFailures) {
    const std::set<std::string> depending = {
        // on the arguments
        "fails: Argument index in format exceeds number of specified arguments",
        "fails: Argument is not a number.", "fails: Invalid date argument type"};
    for (const char* const page : pages) {
        for (const CheckedRow& row : checkedRowsOf(DOCS_FOLDER + std::string(page))) {
            const std::string pattern = messageOf(row);
            const std::string outcome = bytesOf(row.cells[2]);
            if (row.kind == "message" && depending.count(outcome) == 0) {
                EXPECT_EQ(rulesOf(pattern).find("syntax ") != std::string::npos,
                          outcome.find("fails: ") == 0)
                    << page << ":" << row.line << " " << pattern;
            }
        }
    }
}

} // namespace
} // namespace zem::msglib::tool
