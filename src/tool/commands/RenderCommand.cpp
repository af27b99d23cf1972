#include "tool/commands/Command.h"
#include "tool/commands/MessageInput.h"
#include "tool/commands/OutputOptions.h"
#include "tool/pattern/PatternTree.h"
#include "tool/preview/Rendering.h"
#include "tool/preview/SampleTable.h"
#include "tool/text/ArgumentText.h"
#include "tool/text/Colours.h"
#include "tool/text/DisplayText.h"
#include "tool/text/Progress.h"
#include "tool/text/Unicode.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// `msglib render`: a file or a pattern goes in, and perhaps arguments. With arguments, one text
// comes out, as a program shows it. Without, a table of samples comes out for each text: the
// arguments, and what the library renders for them.

namespace zem::msglib::tool {

namespace {

constexpr std::size_t widestArguments = 40; // a longer list moves only its own text

/// Returns a text without the line end at its end.
std::string_view withoutLineEnd(std::string_view text) {
    return !text.empty() && text.back() == '\n' ? text.substr(0, text.size() - 1) : text;
}

std::string argumentsOf(const SampleRow& row) {
    std::string text;
    for (const WrittenArgument& argument : row.arguments) {
        text += (text.empty() ? "" : " ") + argument.text;
    }
    return visibleLine(text);
}

/// Returns the rows of a table as lines: the arguments, two blanks, the text.
std::string tableText(const SampleTable& table, const Colours& colours) {
    std::vector<std::string> arguments;
    std::size_t width = 0;
    for (const SampleRow& row : table.rows) {
        arguments.push_back(argumentsOf(row));
        const std::size_t count = characterCount(arguments.back());
        width = count <= widestArguments ? std::max(width, count) : width;
    }
    std::string text;
    for (std::size_t number = 0; number < table.rows.size(); ++number) {
        const Rendering& rendering = table.rows[number].rendering;
        const std::string line = visibleLine(withoutLineEnd(rendering.text));
        const std::size_t count = characterCount(arguments[number]);
        text += "  " + colours.value(arguments[number]);
        text.append(count < width ? width - count : 0, ' ');
        text += arguments[number].empty() ? "" : "  ";
        text += rendering.isFailure ? colours.error("fails: " + line) : line;
        text += '\n';
    }
    for (const std::string& note : table.notes) {
        text += colours.note("  note: " + note) + '\n';
    }
    return text;
}

std::string sampleText(const InputText& input, const Colours& colours) {
    const std::string title = input.title.empty() ? "" : colours.title(input.title) + '\n';
    if (input.pattern) {
        return title +
               tableText(sampleTableOf(PatternTree(*input.pattern), input.parameters), colours);
    }
    const std::string missing =
        input.isLookedUp
            ? "no text in English (United States): programs show " + shown(renderMissing().text)
            : "no text in this language";
    return title + colours.note("  note: " + missing) + '\n';
}

void showSamples(const MessageInput& input, const Colours& colours) {
    Progress progress("rendering message", input.texts().size(), true);
    bool isFirst = true;
    for (const InputText& text : input.texts()) {
        print((isFirst ? "" : "\n") + sampleText(text, colours));
        progress.step();
        isFirst = false;
    }
}

/// Shows the text with the given arguments. Returns whether rendering succeeded.
bool showText(const MessageInput& input) {
    std::vector<WrittenArgument> arguments;
    for (const std::string& argument : input.arguments()) {
        arguments.push_back(readArgument(argument));
    }
    const InputText& text = input.texts().front();
    const Rendering rendering =
        text.pattern ? render(text.pattern->text(), arguments) : renderMissing();
    print(std::string(withoutLineEnd(rendering.text)) + '\n');
    if (rendering.isFailure) {
        report("note: rendering fails, and programs show this text in place of the message");
    }
    return !rendering.isFailure;
}

ExitStatus render(MessageInput& input) {
    input.read();
    bool isShown = true;
    if (input.arguments().empty()) {
        showSamples(input, Colours(input.diagnostics().coloursOutput()));
    } else if (!input.texts().empty()) {
        isShown = showText(input);
    }
    return input.hasErrors() || !isShown ? ExitStatus::errors : ExitStatus::success;
}

} // namespace

void addRenderCommand(CLI::App& program, Command& chosen) {
    const auto input = std::make_shared<MessageInput>();
    CLI::App& command = *program.add_subcommand(
        "render", "Show messages as programs show them, with given arguments or with samples");
    input->addTo(command, true);
    command.footer(
        "Without arguments, each different text that a message can become is shown, after the\n"
        "arguments that make it. ↵ is a line end inside a text.\n\n"
        "Examples:\n"
        "  msglib render App.mc                      all messages with samples\n"
        "  msglib render App.mc MSG_COPIED           one message with samples\n"
        "  msglib render App.mc MSG_COPIED 7 Büro    one text\n"
        "  msglib render App.mc 0x40010002 --language German\n"
        "  msglib render --pattern \"{0,date,long}\" 2026-11-23T13:30\n"
        "  msglib render --pattern \"{0}\" '\"7\"'       a text, not a number");
    command.callback([input, &chosen] { chosen = [input] { return render(*input); }; });
}

} // namespace zem::msglib::tool
