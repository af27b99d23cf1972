#pragma once

#include "tool/diagnostics/Colours.h"

#include <string>

namespace CLI {
class App;
}

namespace zem::msglib::tool {

/// The options of commands that show something as text or as JSON: `--format` and `--color`.
class OutputOptions {
public:
    /// Adds the options to a command; the object must live until it has run.
    void addTo(CLI::App& command);

    bool isJson() const noexcept { return form_ == "json"; }

    /// Returns the colours of text on standard output.
    Colours colours() const;

    /// Writes to standard output.
    ///
    /// @throws CannotRun if the text cannot be written
    void print(const std::string& text) const;

private:
    std::string form_ = "text";
    std::string color_ = "auto";
};

} // namespace zem::msglib::tool
