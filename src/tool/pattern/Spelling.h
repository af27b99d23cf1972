#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zem::msglib::tool {

/// Returns how many apostrophes a text inside `depth` choices needs for one that is shown, as the
/// library itself answers when it is tried; 0 if that takes too many for anybody.
std::size_t apostrophesForOne(std::size_t depth);

/// Returns a text between as many apostrophes as a style of `type` inside `depth` choices needs for
/// showing it as it stands; empty if there is no such number.
///
/// @param type  `number` or `date`
std::string quotedInStyle(std::string_view type, std::string_view text, std::size_t depth);

} // namespace zem::msglib::tool
