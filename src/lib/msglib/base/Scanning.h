#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zem::msglib {

constexpr char quote = '\'';

/// Tells whether `position` is inside `text` and has `byte`.
constexpr bool holdsAt(std::string_view text, std::size_t position, char byte) noexcept {
    return position < text.size() && text[position] == byte;
}

/// Returns the position of the first quote, brace or `another` from `position` on, which may be the
/// end; the size of `text` if there is none.
std::size_t findSyntax(std::string_view text, std::size_t position, char another) noexcept;

/// A sink for the pieces of a scanned text. It copies them only if there are several, as where
/// quotes have been resolved.
class JoinedPieces {
public:
    void operator()(std::string_view piece) {
        if (++count_ == 1) {
            first_ = piece;
            return;
        }
        if (count_ == 2) {
            joined_ = first_;
        }
        joined_ += piece;
    }

    /// Returns the text, which lives as long as this object and what has been scanned.
    std::string_view text() const noexcept { return count_ > 1 ? joined_ : first_; }

private:
    std::string_view first_;
    std::string joined_;
    std::size_t count_ = 0;
};

} // namespace zem::msglib
