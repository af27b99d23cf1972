#include "tool/catalogue/CatalogueReader.h"
#include "tool/catalogue/SourceReader.h"
#include "tool/changes/ChangeListing.h"
#include "tool/checks/CatalogueRules.h"
#include "tool/commands/Command.h"
#include "tool/commands/OutputOptions.h"
#include "tool/diagnostics/DiagnosticText.h"
#include "tool/text/CannotRun.h"
#include "tool/text/InputFile.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <iterator>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace zem::msglib::tool {

namespace {

struct DiffOptions {
    std::string before;
    std::string after;
    std::string encoding;
    OutputOptions output;
};

/// Reads a message text file, which must have no errors.
Catalogue readText(const std::string& name, std::string bytes, const DiffOptions& options) {
    Diagnostics diagnostics;
    std::vector<Catalogue> catalogues;
    catalogues.push_back(readCatalogue(
        readSource(name, std::move(bytes), options.encoding, 0, diagnostics), diagnostics));
    checkIdentifiers(catalogues, diagnostics);
    const auto errors = errorsAmong(diagnostics.take());
    if (!errors.empty()) {
        std::fputs(textOf(errors, options.output.isColoured(stderr)).c_str(), stderr);
        throw CannotRun(name + ": a file with errors cannot be compared");
    }
    return std::move(catalogues.front());
}

ExitStatus diff(const DiffOptions& options) {
    const std::string* const names[] = {&options.before, &options.after};
    std::string bytes[] = {readBytes(options.before), readBytes(options.after)};
    const bool areTexts = !holdsTables(bytes[0]) && !holdsTables(bytes[1]);
    std::vector<CatalogueVersion> versions;
    for (std::size_t side = 0; side < std::size(bytes); ++side) {
        if (holdsTables(bytes[side])) {
            versions.emplace_back(readTables(*names[side], std::move(bytes[side])));
        } else {
            versions.emplace_back(readText(*names[side], std::move(bytes[side]), options),
                                  areTexts);
        }
    }
    const auto changes = changesBetween(versions[0], versions[1]);
    print(options.output.isJson() ? jsonOf(changes)
                                  : textOf(changes, options.output.isColoured(stdout)));
    return breakCallers(changes) ? ExitStatus::errors : ExitStatus::success;
}

} // namespace

void addDiffCommand(CLI::App& program, Command& chosen) {
    const auto options = std::make_shared<DiffOptions>();
    CLI::App& command = *program.add_subcommand(
        "diff", "Show what has changed between two versions of a catalogue or module");
    command
        .add_option("OLD", options->before,
                    "A message text file (.mc), a module for ELF or a message table by itself "
                    "(.bin, in English)")
        ->required();
    command.add_option("NEW", options->after, "Another one, of any of these kinds")->required();
    command
        .add_option("--encoding", options->encoding,
                    "Encoding of text files that are neither UTF-8 nor UTF-16, as iconv names it")
        ->type_name("NAME");
    options->output.addTo(command);
    command.footer("Only text files have symbolic names, and comments about arguments.\n\n"
                   "Examples:\n"
                   "  msglib diff App.mc.orig App.mc\n"
                   "  msglib diff <(git show v1.0:App.mc) App.mc\n"
                   "  msglib diff /usr/lib/libapp.so build/libapp.so --format json\n\n"
                   "Exit status: 0 if callers of the old version still fit, 1 if not, 2 if the "
                   "program could not run.");
    command.callback([options, &chosen] { chosen = [options] { return diff(*options); }; });
}

} // namespace zem::msglib::tool
