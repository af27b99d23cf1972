#include "tool/commands/OutputOptions.h"

#include "tool/text/CannotRun.h"

#include <CLI/CLI.hpp>

#include <cstdio>

namespace zem::msglib::tool {

void OutputOptions::addTo(CLI::App& command) {
    command.add_option("--format", form_, "Form of the output: text or json")
        ->type_name("FORM")
        ->check(CLI::IsMember({"text", "json"}));
    command.add_option("--color", color_, "Colour the text: auto, always or never")
        ->type_name("WHEN")
        ->check(CLI::IsMember({"auto", "always", "never"}));
}

Colours OutputOptions::colours() const {
    return showsColours(color_, stdout) ? Colours::ofTerminals() : Colours();
}

void OutputOptions::print(const std::string& text) const {
    const bool isWritten = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    if (std::fflush(stdout) != 0 || !isWritten) {
        throw CannotRun("the output cannot be written");
    }
}

} // namespace zem::msglib::tool
