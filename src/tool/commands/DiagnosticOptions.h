#pragma once

#include "tool/diagnostics/Diagnostics.h"

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace zem::msglib::tool {

/// The options of all commands that report diagnostics: `--allow`, `--deny`, `--color` and the
/// form.
class DiagnosticOptions {
public:
    /// Adds the options to a command; the object must live until it has run.
    ///
    /// @param formOption  the name of the option for the form, such as `--format`
    void addTo(CLI::App& command, const std::string& formOption);

    /// Returns how the options change the severities of rules.
    ///
    /// @throws CannotRun if an option names an unknown rule
    SeverityPolicy policy() const { return {allowed_, denied_}; }

    /// Writes diagnostics: text to standard error, JSON and SARIF to standard output.
    ///
    /// @throws CannotRun if they cannot be written
    void write(const std::vector<Diagnostic>& diagnostics) const;

    /// Returns whether text on standard output has colours.
    bool coloursOutput() const;

private:
    std::vector<std::string> allowed_;
    std::vector<std::string> denied_;
    std::string form_ = "text";
    std::string color_ = "auto";
};

} // namespace zem::msglib::tool
