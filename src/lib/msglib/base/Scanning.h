#pragma once

#include <cstddef>
#include <string_view>

namespace zem::msglib {

constexpr char quote = '\'';

/// Tells whether `position` is inside `text` and has `byte`.
constexpr bool holdsAt(std::string_view text, std::size_t position, char byte) noexcept {
    return position < text.size() && text[position] == byte;
}

/// Returns the position of the first quote, brace or `another` from `position` on, which may be the
/// end; the size of `text` if there is none.
std::size_t findSyntax(std::string_view text, std::size_t position, char another) noexcept;

} // namespace zem::msglib
