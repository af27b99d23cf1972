#include "tool/text/Terminal.h"

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

bool isTerminal(std::FILE* stream) {
    const std::string_view kind = environment("TERM");
    return isatty(fileno(stream)) == 1 && !kind.empty() && kind != "dumb";
}

bool showsColours(const std::string& when, std::FILE* stream) {
    return when == "always" ||
           (when == "auto" && isTerminal(stream) && environment("NO_COLOR").empty());
}

} // namespace zem::msglib::tool
