#pragma once

#include "tool/pattern/PatternTree.h"

#include <string>
#include <string_view>

namespace zem::msglib::tool {

/// Returns the type that a style word such as `integer` or `short` belongs to; empty if it is none.
std::string_view typeOfStyleWord(std::string_view word) noexcept;

/// Returns the style word that a style seems to be although the library takes it for a pattern,
/// since it has blanks, capitals or the wrong type; empty if it seems to be a pattern.
std::string misreadStyleWord(const Placeholder& placeholder);

} // namespace zem::msglib::tool
