#pragma once

#include "tool/pattern/PatternTree.h"
#include "tool/text/Colours.h"

#include <string>

namespace zem::msglib::tool {

/// Returns a pattern in words, one line for each static text, placeholder and choice, with the
/// texts of choices indented below:
///
///     argument 0 decides:
///       from 0, up to 1, and everything lower:
///         text "One file"
///       above 1:
///         argument 0 as its kind asks: 1234 shows "1,234", ...
///         text " files"
///
/// Where quoting has changed a text, the line says how it is written and what vanishes. It takes
/// time in proportion to the pattern, but for logarithms; from some depth on, a number tells the
/// level in place of more indentation.
std::string explanationOf(const PatternTree& tree, const Colours& colours);

} // namespace zem::msglib::tool
