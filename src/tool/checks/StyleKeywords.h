#pragma once

#include "tool/pattern/PatternTree.h"

#include <string>
#include <string_view>

namespace zem::msglib::tool {

/// Returns the type that a style keyword such as `integer` or `short` belongs to; empty if the word
/// is not a style keyword.
std::string_view typeOfStyleKeyword(std::string_view word) noexcept;

/// Returns the style keyword that was probably meant by a style that the library reads as a
/// pattern, because of blanks, capitals or the wrong type. Empty if a pattern was probably meant.
std::string misreadStyleKeyword(const Placeholder& placeholder);

} // namespace zem::msglib::tool
