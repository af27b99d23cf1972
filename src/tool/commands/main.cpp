#include "tool/commands/Command.h"
#include "tool/diagnostics/Version.h"
#include "tool/text/CannotRun.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <iostream>

namespace {

using namespace zem::msglib::tool;

ExitStatus run(int argc, const char* const* argv) {
    CLI::App program("Checks, shows and compiles message catalogues.", "msglib");
    program.set_version_flag("--version", "msglib " + versionText());
    program.require_subcommand(1);
    program.footer("Examples:\n"
                   "  msglib compile App.mc --output .\n"
                   "  msglib render App.mc MSG_COPIED\n"
                   "  msglib compile --help\n\n"
                   "Exit status: 0 without errors, 1 with errors, 2 if the program could not run.");
    Command chosen;
    addCompileCommand(program, chosen);
    addCheckCommand(program, chosen);
    addRenderCommand(program, chosen);
    addExplainCommand(program, chosen);
    addQuoteCommand(program, chosen);
    addDumpCommand(program, chosen);
    addDiffCommand(program, chosen);
    addRulesCommand(program, chosen);
    addExplainRuleCommand(program, chosen);
    try {
        program.parse(argc, argv);
    } catch (const CLI::Error& error) {
        return program.exit(error) == 0 ? ExitStatus::success : ExitStatus::cannotRun;
    }
    return chosen();
}

} // namespace

int main(int argc, char** argv) {
    try {
        return static_cast<int>(run(argc, argv));
    } catch (const std::exception& error) {
        std::cerr << "msglib: error: " << error.what() << '\n';
        return static_cast<int>(ExitStatus::cannotRun);
    }
}
