#pragma once

#include <cstddef>
#include <string_view>

namespace zem::msglib {

/// A placeholder whose index is plain digits, and whose type and style lie in the pattern as they
/// are.
struct PlainPlaceholder {
    int index = 0;
    std::string_view type;
    std::string_view style;
};

/// Reads the placeholder whose index begins at `position` of a pattern into `placeholder`, which is
/// a new one.
///
/// @return where the text behind it begins; `std::string_view::npos` if it is not plain, or doesn't
///         end
std::size_t readPlainPlaceholder(std::string_view pattern, std::size_t position,
                                 PlainPlaceholder& placeholder);

} // namespace zem::msglib
