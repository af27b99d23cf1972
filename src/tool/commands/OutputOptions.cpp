#include "tool/commands/OutputOptions.h"

#include "tool/text/CannotRun.h"
#include "tool/text/Terminal.h"

#include <CLI/CLI.hpp>

#include <cstdio>

namespace zem::msglib::tool {

void print(const std::string& text) {
    const bool isWritten = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    if (std::fflush(stdout) != 0 || !isWritten) {
        throw CannotRun("the output cannot be written");
    }
}

void report(const std::string& message) {
    std::fputs(("msglib: " + message + '\n').c_str(), stderr);
}

void OutputOptions::addTo(CLI::App& command) {
    command.add_option("--format", form_, "Form of the output: text or json")
        ->type_name("FORM")
        ->check(CLI::IsMember({"text", "json"}));
    command.add_option("--color", color_, "Colour the text: auto, always or never")
        ->type_name("WHEN")
        ->check(CLI::IsMember({"auto", "always", "never"}));
}

bool OutputOptions::isColoured(std::FILE* stream) const {
    return showsColours(color_, stream);
}

} // namespace zem::msglib::tool
