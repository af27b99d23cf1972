#pragma once

#include <string_view>

namespace zem::msglib::tool {

/// Returns whether a name is a keyword of C++, up to C++20, or an alternative token.
bool isKeywordOfCpp(std::string_view name) noexcept;

/// Returns whether a name is a macro of the C library, or an error number that operating systems
/// add to it.
bool isMacroOfC(std::string_view name) noexcept;

/// Returns whether C++ reserves a name for compilers and libraries because of its underscores.
bool isReservedForCompilers(std::string_view name) noexcept;

} // namespace zem::msglib::tool
