#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zem::msglib::tool {

/// Returns the number of apostrophes that show one apostrophe in a text inside `depth` choices,
/// found by trying with the library; 0 if it is too large to be useful.
std::size_t apostrophesForOne(std::size_t depth);

/// Returns a text between as many apostrophes as show it unchanged in a style of `type` inside
/// `depth` choices; empty if there is no such number.
///
/// @param type  `number` or `date`
std::string quotedInStyle(std::string_view type, std::string_view text, std::size_t depth);

} // namespace zem::msglib::tool
