#pragma once

#include <string>
#include <string_view>

namespace zem::msglib::tool {

/// Returns a part of a pattern for a diagnostic: in backticks, and shortened if it is long.
std::string code(std::string_view text);

/// Returns a text that users see for a diagnostic: in quotation marks, and shortened if it is long.
std::string shown(std::string_view text);

/// Returns any bytes as one line for people: `↵` for a line end, and U+FFFD for each other control
/// character and each byte that is not UTF-8.
std::string visibleLine(std::string_view bytes);

/// Returns valid UTF-8 with U+FFFD in place of each control character except tabs, so a terminal
/// only shows it.
std::string visible(std::string_view text);

} // namespace zem::msglib::tool
