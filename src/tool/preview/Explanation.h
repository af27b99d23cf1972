#pragma once

#include "tool/pattern/PatternTree.h"
#include "tool/text/Colours.h"

#include <string>

namespace zem::msglib::tool {

/// Returns a description of a pattern, one line for each static text, placeholder and choice, with
/// the texts of choices indented below:
///
///     argument 0 decides:
///       from 0, up to 1, and everything lower:
///         text "One file"
///       above 1:
///         argument 0 by its kind: 1234 shows "1,234", ...
///         text " files"
///
/// If quoting changes a text, the line also shows how it is written and which characters disappear.
/// The time is linear in the length of the pattern, times logarithms. From some depth on, a number
/// shows the level instead of more indentation.
std::string explanationOf(const PatternTree& tree, const Colours& colours);

} // namespace zem::msglib::tool
