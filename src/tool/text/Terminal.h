#pragma once

#include <cstdio>
#include <string>

namespace zem::msglib::tool {

/// Returns whether a stream is a terminal that obeys escape sequences.
bool isTerminal(std::FILE* stream);

/// Returns whether text for a stream has colours.
///
/// @param when    `always`, `never`, or `auto` for terminals, unless the environment variable
///                NO_COLOR forbids it
/// @param stream  to which the text goes
bool showsColours(const std::string& when, std::FILE* stream);

} // namespace zem::msglib::tool
