#pragma once

#include "tool/pattern/PatternTree.h"

#include <string>
#include <string_view>

namespace zem::msglib::tool {

/// Returns the type that a style word such as `integer` or `short` belongs to; empty if it is not a
/// style word.
std::string_view typeOfStyleWord(std::string_view word) noexcept;

/// Returns the style word that was probably meant by a style that the library reads as a pattern,
/// because of blanks, capitals or the wrong type. Empty if a pattern was probably meant.
std::string misreadStyleWord(const Placeholder& placeholder);

} // namespace zem::msglib::tool
