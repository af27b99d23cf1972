#include "tool/commands/DiagnosticOptions.h"

#include "tool/diagnostics/DiagnosticJson.h"
#include "tool/diagnostics/DiagnosticText.h"
#include "tool/text/CannotRun.h"
#include "tool/text/Terminal.h"

#include <CLI/CLI.hpp>

#include <cstdio>

namespace zem::msglib::tool {

void DiagnosticOptions::addTo(CLI::App& command, const std::string& formOption) {
    command.add_option("--allow", allowed_, "Leave out the diagnostics of a rule")
        ->type_name("RULE")
        ->allow_extra_args(false);
    command
        .add_option("--deny", denied_,
                    "Report the diagnostics of a rule, or all `warnings`, as errors")
        ->type_name("RULE")
        ->allow_extra_args(false);
    command.add_option(formOption, form_, "Form of the diagnostics: text, msvc, json or sarif")
        ->type_name("FORM")
        ->check(CLI::IsMember({"text", "msvc", "json", "sarif"}));
    command.add_option("--color", color_, "Colour the text: auto, always or never")
        ->type_name("WHEN")
        ->check(CLI::IsMember({"auto", "always", "never"}));
}

void DiagnosticOptions::write(const std::vector<Diagnostic>& diagnostics) const {
    const std::string text = form_ == "json"    ? jsonOf(diagnostics)
                             : form_ == "sarif" ? sarifOf(diagnostics)
                             : form_ == "msvc"  ? msvcTextOf(diagnostics)
                                                : textOf(diagnostics, showsColours(color_, stderr));
    const bool isForPrograms = form_ == "json" || form_ == "sarif";
    std::FILE* const out = isForPrograms ? stdout : stderr;
    const bool isWritten = std::fwrite(text.data(), 1, text.size(), out) == text.size();
    if (std::fflush(out) != 0 || !isWritten) {
        throw CannotRun("the diagnostics cannot be written");
    }
}

bool DiagnosticOptions::coloursOutput() const {
    return showsColours(color_, stdout);
}

} // namespace zem::msglib::tool
