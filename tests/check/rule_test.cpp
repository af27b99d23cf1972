// The table of rules: its examples are true, and the documentation is generated from it.

#include "check/Checking.h"
#include "tool/catalogue/CallSignatures.h"
#include "tool/checks/MessageChecks.h"
#include "tool/diagnostics/Rule.h"
#include "tool/diagnostics/RulePage.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

namespace zem::msglib::tool {
namespace {

/// Returns the rules that an example violates, a pattern or a message text file of several lines.
std::set<const Rule*> violatedBy(std::string_view example, const Rule& rule) {
    const bool isOff = rule.severity == Severity::off;
    Diagnostics diagnostics(isOff ? SeverityPolicy({}, {std::string(rule.name)})
                                  : SeverityPolicy());
    const SourceFile pattern("pattern", std::string(example));
    std::vector<Catalogue> catalogues;
    if (example.find('\n') == std::string_view::npos) {
        checkPattern(PatternTree({&pattern, 0, example.size()}), diagnostics);
    } else {
        catalogues.push_back(readCatalogue(
            readSource("example.mc", std::string(example), "", 0, diagnostics), diagnostics));
        checkIdentifiers(catalogues, diagnostics);
        checkMessages(catalogues, diagnostics);
        readSignatures(catalogues.front(), diagnostics);
    }
    std::set<const Rule*> rules;
    for (const Diagnostic& diagnostic : diagnostics.take()) {
        rules.insert(diagnostic.rule);
    }
    return rules;
}

TEST(Rules, ExamplesAreTrue) {
    for (const Rule* const rule : allRules()) {
        if (rule == &rules::fileEncoding) { // no example can be written in UTF-8
            continue;
        }
        EXPECT_EQ(violatedBy(rule->wrong, *rule), std::set<const Rule*>{rule}) << rule->name;
        EXPECT_EQ(violatedBy(rule->right, *rule), std::set<const Rule*>()) << rule->name;
    }
}

TEST(Rules, NamesAreUnique) {
    std::set<std::string_view> names;
    for (const Rule* const rule : allRules()) {
        EXPECT_TRUE(names.insert(rule->name).second) << rule->name;
        EXPECT_EQ(findRule(rule->name), rule);
        EXPECT_EQ(rule->name.find_first_not_of("abcdefghijklmnopqrstuvwxyz-"), rule->name.npos);
        EXPECT_NE(rule->summary.back(), '.') << rule->name;
    }
}

TEST(Rules, PageIsGeneratedFromRules) {
    std::ifstream page(DOCS_FOLDER "/rules.md", std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(page), {}), rulePage())
        << "write it by `msglib rules --markdown > docs/rules.md`";
}

} // namespace
} // namespace zem::msglib::tool
