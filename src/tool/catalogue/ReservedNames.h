#pragma once

#include <string_view>

namespace zem::msglib::tool {

/// Tells whether a name is a keyword of C++, up to C++20, or an alternative token.
bool isKeywordOfCpp(std::string_view name) noexcept;

/// Tells whether a name is a macro of the C library, or one of the error numbers that systems add.
bool isMacroOfC(std::string_view name) noexcept;

/// Tells whether a name has underscores that C++ leaves to compilers and libraries.
bool isReservedForCompilers(std::string_view name) noexcept;

} // namespace zem::msglib::tool
