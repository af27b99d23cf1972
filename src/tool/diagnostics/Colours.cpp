#include "tool/diagnostics/Colours.h"

#include <unistd.h>

#include <cstdlib>
#include <string_view>

namespace zem::msglib::tool {

namespace {

/// Returns the value of an environment variable; empty if there is none.
std::string_view environment(const char* name) {
    const char* const value = std::getenv(name);
    return value != nullptr ? value : "";
}

} // namespace

Colours Colours::ofTerminals() noexcept {
    return {"\x1B[1m", "\x1B[1;31m", "\x1B[1;35m", "\x1B[1;36m", "\x1B[1;32m", "\x1B[0m"};
}

bool showsColours(const std::string& when, std::FILE* stream) {
    const std::string_view terminal = environment("TERM");
    const bool isTerminal = isatty(fileno(stream)) == 1 && !terminal.empty() && terminal != "dumb";
    return when == "always" || (when == "auto" && isTerminal && environment("NO_COLOR").empty());
}

} // namespace zem::msglib::tool
