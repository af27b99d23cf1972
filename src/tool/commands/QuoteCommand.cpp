#include "tool/commands/Command.h"
#include "tool/commands/OutputOptions.h"
#include "tool/pattern/Quoter.h"
#include "tool/text/CannotRun.h"
#include "tool/text/Strings.h"
#include "tool/text/Unicode.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>

// `msglib quote`: a text and its place in a pattern go in, the shortest known spelling comes out.
// `Quoter` finds it by asking the library. If there is none, an advice is printed instead.

namespace zem::msglib::tool {

namespace {

constexpr std::size_t deepest = 8;

struct QuoteOptions {
    std::string text;
    std::string place = "text";
    std::optional<std::size_t> depth;
};

/// Returns a text with U+2019, which has no meaning in any pattern, in place of apostrophes.
std::string withTypographicApostrophes(const std::string& text) {
    std::string result;
    for (const char byte : text) {
        result += byte == '\'' ? std::string("’") : std::string(1, byte);
    }
    return result;
}

/// Returns what to do if a text has no spelling.
std::string advice(const QuoteOptions& options, const Quoter& quoter) {
    const std::string other = withTypographicApostrophes(options.text);
    if (other != options.text) {
        if (const auto spelling = quoter.quote(other)) {
            return "write ’ (U+2019) for an apostrophe: " + *spelling;
        }
    }
    return options.place == "number" || options.place == "date"
               ? "write it before or after the placeholder"
               : "pass it as an argument";
}

/// Returns why a message text file cannot hold a text; empty if it can.
std::string limitOfFiles(const std::string& text) {
    if (text.find_first_of("\r\x1A") != std::string::npos) {
        return "a message text file cannot have a carriage return or Ctrl-Z in a text";
    }
    for (const std::string_view line : linesOf(text)) {
        if (trimmed(line) == ".") {
            return "in a message text file, a line with \".\" alone ends the text";
        }
    }
    return {};
}

ExitStatus quote(const QuoteOptions& options) {
    if (validUtf8Length(options.text) < options.text.size()) {
        throw CannotRun("the text is not UTF-8");
    }
    const std::size_t depth = options.depth.value_or(options.place == "choice" ? 1 : 0);
    if (depth == 0 && options.place == "choice") {
        throw CannotRun("the text of a choice is in 1 choice at least");
    }
    const TextPlace place = options.place == "number" ? TextPlace::number
                            : options.place == "date" ? TextPlace::date
                                                      : TextPlace::message;
    const Quoter quoter(place, depth);
    const auto spelling = quoter.quote(options.text);
    if (!spelling) {
        report("no spelling was found that shows this text there; " + advice(options, quoter));
        return ExitStatus::errors;
    }
    print(*spelling + '\n');
    const std::string limit = limitOfFiles(options.text);
    if (!limit.empty()) {
        report("note: " + limit);
    }
    return ExitStatus::success;
}

} // namespace

void addQuoteCommand(CLI::App& program, Command& chosen) {
    const auto options = std::make_shared<QuoteOptions>();
    CLI::App& command = *program.add_subcommand(
        "quote", "Show how to write a text in a pattern so that it appears unchanged");
    command.add_option("TEXT", options->text, "The text that has to appear")->required();
    command
        .add_option(
            "--in", options->place,
            "Where: text (of a message), choice (text of a choice), number or date (text in "
            "a decimal or date style)")
        ->type_name("PLACE")
        ->check(CLI::IsMember({"text", "choice", "number", "date"}));
    command
        .add_option("--depth", options->depth,
                    "Number of choices around the place; the default is 1 for a choice, else 0")
        ->type_name("N")
        ->check(CLI::Range(std::size_t{0}, deepest));
    command.footer(
        "Every spelling is rendered by the library before it is printed.\n\n"
        "Examples:\n"
        "  msglib quote \"use {0}, don't guess\"                '{'0'}' for {0}\n"
        "  msglib quote \"It's full\" --in choice             the text of a choice\n"
        "  msglib quote \"o'clock\" --in date --depth 1       a date style in a choice\n\n"
        "Exit status: 0 if there is a spelling, 1 if none was found, 2 if the program could not "
        "run.");
    command.callback([options, &chosen] { chosen = [options] { return quote(*options); }; });
}

} // namespace zem::msglib::tool
