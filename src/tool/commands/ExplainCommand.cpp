#include "tool/commands/Command.h"
#include "tool/commands/MessageInput.h"
#include "tool/commands/OutputOptions.h"
#include "tool/pattern/PatternTree.h"
#include "tool/preview/Explanation.h"
#include "tool/text/CannotRun.h"
#include "tool/text/Colours.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <string>

namespace zem::msglib::tool {

namespace {

ExitStatus explain(MessageInput& input) {
    input.read();
    if (!input.arguments().empty()) {
        throw CannotRun("--pattern takes the place of a file: there is nothing else to explain");
    }
    const Colours colours(input.diagnostics().coloursOutput());
    bool isFirst = true;
    for (const InputText& text : input.texts()) {
        std::string output = isFirst ? "" : "\n";
        isFirst = false;
        output += text.title.empty() ? "" : colours.title(text.title) + '\n';
        output += text.pattern ? explanationOf(PatternTree(*text.pattern), colours)
                               : colours.note("no text in this language") + '\n';
        print(output);
    }
    return input.hasErrors() ? ExitStatus::errors : ExitStatus::success;
}

} // namespace

void addExplainCommand(CLI::App& program, Command& chosen) {
    const auto input = std::make_shared<MessageInput>();
    CLI::App& command = *program.add_subcommand(
        "explain", "Describe in words how patterns are read: texts, arguments, formats, choices");
    input->addTo(command, false);
    command.footer(
        "Examples:\n"
        "  msglib explain App.mc MSG_COPIED\n"
        "  msglib explain App.mc 0x40010002 --language German\n"
        "  msglib explain --pattern \"{0,choice,0#none|1#one|1<{0}}, {1,number,percent}\"");
    command.callback([input, &chosen] { chosen = [input] { return explain(*input); }; });
}

} // namespace zem::msglib::tool
