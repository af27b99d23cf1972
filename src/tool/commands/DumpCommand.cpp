#include "tool/commands/Command.h"
#include "tool/commands/OutputOptions.h"
#include "tool/table/ModuleTables.h"
#include "tool/table/TableListing.h"
#include "tool/text/InputFile.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <memory>
#include <string>

namespace zem::msglib::tool {

namespace {

struct DumpOptions {
    std::string module;
    OutputOptions output;
};

ExitStatus dump(const DumpOptions& options) {
    const auto tables = readTables(options.module, readBytes(options.module));
    if (tables.empty() && !options.output.isJson()) {
        report(options.module + ": this file has no messages");
        return ExitStatus::errors;
    }
    print(options.output.isJson() ? jsonOf(tables)
                                  : textOf(tables, options.output.isColoured(stdout)));
    return tables.empty() ? ExitStatus::errors : ExitStatus::success;
}

} // namespace

void addDumpCommand(CLI::App& program, Command& chosen) {
    const auto options = std::make_shared<DumpOptions>();
    CLI::App& command =
        *program.add_subcommand("dump", "Show the messages inside a module or a message table");
    command
        .add_option("MODULE", options->module,
                    "An ELF program, shared library, plug-in or object, of any machine; or a "
                    "message table by itself (.bin)")
        ->required();
    options->output.addTo(command);
    command.footer(
        "Examples:\n"
        "  msglib dump ./app\n"
        "  msglib dump plugin.so --format json\n"
        "  msglib dump messages_0409.bin\n\n"
        "Exit status: 0 if there are messages, 1 if there are none, 2 if the file cannot "
        "be read.");
    command.callback([options, &chosen] { chosen = [options] { return dump(*options); }; });
}

} // namespace zem::msglib::tool
