#pragma once

#include <cstddef>
#include <string_view>

namespace zem::msglib {

constexpr char quote = '\'';

/// Returns whether `text` has `byte` at `position`, which may be beyond its end.
constexpr bool holdsAt(std::string_view text, std::size_t position, char byte) noexcept {
    return position < text.size() && text[position] == byte;
}

/// Returns the position of the first apostrophe, brace or `delimiter` from `position` on, or the
/// size of `text` if there is none. `position` is at most that size.
std::size_t findSyntax(std::string_view text, std::size_t position, char delimiter) noexcept;

} // namespace zem::msglib
