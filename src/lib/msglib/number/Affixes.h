#pragma once

#include <string_view>

namespace zem::msglib {

/// The texts before and after the digits of a number.
struct Affixes {
    std::string_view prefix;
    std::string_view suffix;

    /// Returns whether both are empty.
    bool areEmpty() const noexcept { return prefix.empty() && suffix.empty(); }
};

} // namespace zem::msglib
