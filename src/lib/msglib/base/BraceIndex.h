#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace zem::msglib {

/// Where each opening brace of a text closes, found in one pass, so that readers of deep nesting
/// need not pass through it at every level. It borrows the text, which must have no apostrophes:
/// without quoting, the readers of messages and of choices match braces alike.
class BraceIndex {
public:
    /// Takes time and memory linear in the number of braces.
    explicit BraceIndex(std::string_view text);

    /// Returns the position after the brace that closes the one at `position` of `part`, a part of
    /// the text; the size of `part` if it doesn't close there.
    std::size_t endOf(std::string_view part, std::size_t position) const noexcept;

private:
    struct Pair {
        const char* opening;
        const char* closing; // null if it never closes
    };
    std::vector<Pair> pairs_; // in the order of the opening braces
};

} // namespace zem::msglib
