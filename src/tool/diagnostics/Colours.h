#pragma once

#include <cstdio>
#include <string>

namespace zem::msglib::tool {

/// What goes around the parts of a text on a terminal: nothing, or escape sequences.
struct Colours {
    const char* place = "";
    const char* error = "";
    const char* warning = "";
    const char* note = "";
    const char* good = "";
    const char* end = "";

    static Colours ofTerminals() noexcept;
};

/// Tells whether text for a stream is to be coloured.
///
/// @param when    `always`, `never`, or `auto` for terminals that can show colours and are not
///                forbidden to by the environment variable NO_COLOR
/// @param stream  to which the text goes
bool showsColours(const std::string& when, std::FILE* stream);

} // namespace zem::msglib::tool
