#include "tool/diagnostics/RulePage.h"

#include "tool/diagnostics/DiagnosticText.h"

#include <algorithm>
#include <string_view>

// The table of rules goes in, text comes out: a list with one line for each rule, the explanation
// of one rule, or the page of the documentation.

namespace zem::msglib::tool {

namespace {

constexpr std::string_view pageHead =
    "# Rules\n"
    "\n"
    "The problems that `msglib check` and every build report in message catalogues. This page is "
    "the output "
    "of\n"
    "`msglib rules --markdown`; `msglib explain-rule NAME` shows one rule.\n"
    "\n"
    "- An **error** fails or breaks UTF-8 at run time, or has no clear meaning. It stops the "
    "build.\n"
    "- A **warning** is surely not meant.\n"
    "- A **note** is worth a look.\n"
    "\n"
    "`--deny RULE` turns a rule into an error, `--deny warnings` all warnings, and `--allow RULE` "
    "turns a\n"
    "rule off; so do `DENY` and `ALLOW` of the CMake function. A comment before a message allows "
    "rules in that\n"
    "message only:\n"
    "\n"
    "    ; // msglib: allow quote-vanishes\n";

bool isFile(std::string_view example) noexcept {
    return example.find('\n') != std::string_view::npos;
}

/// Returns a text with `blanks` before each line.
std::string indented(std::string_view text, std::string_view blanks) {
    std::string result;
    while (!text.empty()) {
        const std::size_t length = std::min(text.find('\n'), text.size());
        result.append(blanks).append(text.substr(0, length)) += '\n';
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    return result;
}

std::string severityOf(const Rule& rule) {
    return rule.severity == Severity::off ? "off unless denied" : nameOf(rule.severity);
}

} // namespace

std::string ruleList() {
    std::size_t width = 0;
    for (const Rule* const rule : allRules()) {
        width = std::max(width, rule->name.size());
    }
    std::string list;
    for (const Rule* const rule : allRules()) {
        const std::string severity = rule->severity == Severity::off ? "off" : severityOf(*rule);
        list += std::string(rule->name) + std::string(width + 2 - rule->name.size(), ' ') +
                severity + std::string(9 - severity.size(), ' ') + std::string(rule->summary) +
                '\n';
    }
    return list;
}

std::string explanationOf(const Rule& rule) {
    std::string text(rule.name);
    text += " (" + severityOf(rule) + "): " + std::string(rule.summary) + "\n\n" +
            std::string(rule.explanation) + '\n';
    if (!rule.wrong.empty()) {
        text += "\nWrong:\n\n" + indented(rule.wrong, "    ") + "\nRight:\n\n" +
                indented(rule.right, "    ");
    }
    if (!rule.mayBeAllowed) {
        text += "\nThis rule cannot be allowed.\n";
    }
    return text;
}

std::string rulePage() {
    std::string page(pageHead);
    page += "\n| Rule | Severity | Reports |\n|---|---|---|\n";
    for (const Rule* const rule : allRules()) {
        page.append("| [").append(rule->name).append("](#").append(rule->name).append(") | ");
        page.append(severityOf(*rule)).append(" | ").append(rule->summary).append(" |\n");
    }
    for (const Rule* const rule : allRules()) {
        page.append("\n## ").append(rule->name).append("\n\n");
        page.append(rule->explanation).append("\n");
        if (isFile(rule->wrong)) {
            page += "\nWrong:\n\n" + indented(rule->wrong, "    ") + "\nRight:\n\n" +
                    indented(rule->right, "    ");
        } else if (!rule->wrong.empty()) {
            page += "\n    " + std::string(rule->wrong) + "\n\nbecomes\n\n    " +
                    std::string(rule->right) + '\n';
        }
        if (!rule->mayBeAllowed) {
            page += "\nThis rule cannot be allowed.\n";
        }
    }
    return page;
}

} // namespace zem::msglib::tool
