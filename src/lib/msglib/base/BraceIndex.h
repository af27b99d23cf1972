#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace zem::msglib {

/// The matching closing brace of each opening brace of a text, found in one pass. With it, readers
/// of deeply nested patterns skip the inner levels instead of scanning them once for each level.
///
/// It borrows the text, which must not contain apostrophes: without quoting, the readers of
/// messages and of choices match braces in the same way.
class BraceIndex {
public:
    /// Takes time linear in the length of the text and memory linear in the number of braces.
    explicit BraceIndex(std::string_view text);

    /// Returns the position after the brace that matches the one at `position` of `part`, a part of
    /// the text; the size of `part` if the match isn't inside it. Takes logarithmic time.
    std::size_t endOf(std::string_view part, std::size_t position) const noexcept;

private:
    struct Pair {
        const char* opening;
        const char* closing; // null without a match
    };
    std::vector<Pair> pairs_; // ordered by opening brace
};

} // namespace zem::msglib
