#include "tool/commands/Command.h"
#include "tool/commands/OutputOptions.h"
#include "tool/diagnostics/RulePage.h"
#include "tool/text/CannotRun.h"
#include "tool/text/Names.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace zem::msglib::tool {

namespace {

ExitStatus show(const std::string& text) {
    print(text);
    return ExitStatus::success;
}

ExitStatus explain(const std::string& name) {
    if (const Rule* const rule = findRule(name)) {
        return show(explanationOf(*rule));
    }
    std::vector<std::string_view> names;
    for (const Rule* const rule : allRules()) {
        names.push_back(rule->name);
    }
    const auto meant = nearest(name, names);
    throw CannotRun("there is no rule " + name +
                    (meant ? "; did you mean " + std::string(*meant) + "?" : ""));
}

} // namespace

void addRulesCommand(CLI::App& program, Command& chosen) {
    const auto isPage = std::make_shared<bool>(false);
    CLI::App& command = *program.add_subcommand("rules", "List the rules that are checked");
    command.add_flag("--markdown", *isPage, "Write the documentation page of all rules");
    command.callback([isPage, &chosen] {
        chosen = [isPage] { return show(*isPage ? rulePage() : ruleList()); };
    });
}

void addExplainRuleCommand(CLI::App& program, Command& chosen) {
    const auto name = std::make_shared<std::string>();
    CLI::App& command =
        *program.add_subcommand("explain-rule", "Show why a rule exists and what to write instead");
    command.add_option("NAME", *name, "A rule")->required();
    command.footer("Example:\n  msglib explain-rule choice-quote");
    command.callback([name, &chosen] { chosen = [name] { return explain(*name); }; });
}

} // namespace zem::msglib::tool
