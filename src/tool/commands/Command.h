#pragma once

#include <functional>

namespace CLI {
class App;
}

namespace zem::msglib::tool {

/// The exit status of the program.
enum class ExitStatus { success = 0, errors = 1, cannotRun = 2 };

/// The work of the chosen command, to be called after the whole command line was read.
using Command = std::function<ExitStatus()>;

// Each of these functions adds a command to the program. If the user chooses the command, its work
// is stored in `chosen`.

void addCheckCommand(CLI::App& program, Command& chosen);
void addCompileCommand(CLI::App& program, Command& chosen);
void addDiffCommand(CLI::App& program, Command& chosen);
void addDumpCommand(CLI::App& program, Command& chosen);
void addExplainCommand(CLI::App& program, Command& chosen);
void addExplainRuleCommand(CLI::App& program, Command& chosen);
void addQuoteCommand(CLI::App& program, Command& chosen);
void addRenderCommand(CLI::App& program, Command& chosen);
void addRulesCommand(CLI::App& program, Command& chosen);

} // namespace zem::msglib::tool
