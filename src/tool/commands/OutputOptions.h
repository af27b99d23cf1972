#pragma once

#include <cstdio>
#include <string>

namespace CLI {
class App;
}

namespace zem::msglib::tool {

/// Writes a text to standard output.
///
/// @throws CannotRun if it cannot be written
void print(const std::string& text);

/// Writes a line to standard error, after the name of the program.
void report(const std::string& message);

/// The options of commands that show something as text or as JSON: `--format` and `--color`.
class OutputOptions {
public:
    /// Adds the options to a command; the object must live until it has run.
    void addTo(CLI::App& command);

    bool isJson() const noexcept { return form_ == "json"; }

    /// Returns whether text for a stream has colours.
    bool isColoured(std::FILE* stream) const;

private:
    std::string form_ = "text";
    std::string color_ = "auto";
};

} // namespace zem::msglib::tool
