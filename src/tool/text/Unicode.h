#pragma once

#include <cstddef>
#include <string_view>

namespace zem::msglib::tool {

/// Returns the number of characters (code points) of valid UTF-8.
std::size_t characterCount(std::string_view utf8) noexcept;

/// Returns the number of UTF-16 units that valid UTF-8 has.
std::size_t utf16UnitCount(std::string_view utf8) noexcept;

/// Returns the length of the longest prefix of `bytes` that is valid UTF-8: their size if all are
/// valid.
std::size_t validUtf8Length(std::string_view bytes) noexcept;

/// Returns whether a character is a control character, which a terminal executes instead of showing
/// it.
constexpr bool isControl(char32_t character) noexcept {
    return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

/// Takes the first character from valid UTF-8 that is not empty.
char32_t takeCharacter(std::string_view& utf8) noexcept;

} // namespace zem::msglib::tool
