#pragma once

#include "tool/diagnostics/Diagnostics.h"

#include <string>
#include <vector>

namespace zem::msglib::tool {

/// Returns diagnostics in the form of compilers, each with its source line:
///
///     App.mc:31:34: warning: message [rule]
///        31 | the line
///           |   ^~~~
///     App.mc:31:34: note: what to write instead
///
/// Of a long line, the part around the place is shown. Control characters are shown as U+FFFD.
///
/// @param isColoured  whether to add the escape sequences of terminals
std::string textOf(const std::vector<Diagnostic>& diagnostics, bool isColoured);

/// Returns diagnostics in the form that Visual Studio and MSBuild recognise: `App.mc(31,34):
/// warning rule: message`.
std::string msvcTextOf(const std::vector<Diagnostic>& diagnostics);

/// Returns the name of a severity: note, warning or error.
const char* nameOf(Severity severity) noexcept;

} // namespace zem::msglib::tool
