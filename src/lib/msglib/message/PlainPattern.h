#pragma once

#include "message/PlaceholderStyle.h"

#include <cstddef>
#include <string_view>

namespace zem::msglib {

/// A placeholder that needs nothing compiled: its index is plain digits and its style a keyword.
struct PlainPlaceholder {
    int index = 0;
    PlaceholderStyle style = PlaceholderStyle::ByKind;
};

/// Reads the placeholder that begins at `position`.
///
/// @return the position behind it; `std::string_view::npos` if it is none, or not a plain one
std::size_t readPlainPlaceholder(std::string_view pattern, std::size_t position,
                                 PlainPlaceholder& placeholder) noexcept;

/// Tells whether a pattern compiles and has plain placeholders only, so that it can be rendered as
/// it is read.
bool isPlain(std::string_view pattern) noexcept;

} // namespace zem::msglib
