#pragma once

#include <string_view>
#include <vector>

namespace zem::msglib::tool {

/// Returns the lines of a text without their ends, which are LF or CR LF. The last one need not
/// have an end.
std::vector<std::string_view> linesOf(std::string_view text);

/// Returns the text without blanks and line ends at its start and end.
std::string_view trimmed(std::string_view text) noexcept;

constexpr bool isDigit(char byte) noexcept {
    return byte >= '0' && byte <= '9';
}

constexpr bool isLetter(char byte) noexcept {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

} // namespace zem::msglib::tool
