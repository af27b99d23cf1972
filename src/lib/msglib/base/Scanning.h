#pragma once

#include <cstddef>
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

/// A sink for the pieces of a scanned text that copies none of them.
class SinglePiece {
public:
    void operator()(std::string_view piece) noexcept {
        piece_ = piece;
        ++count_;
    }

    /// Tells whether the text came in one piece, as it does unless it has quotes to be resolved.
    bool isWhole() const noexcept { return count_ == 1; }

    /// Returns the last piece, the text if it is whole.
    std::string_view text() const noexcept { return piece_; }

private:
    std::string_view piece_;
    std::size_t count_ = 0;
};

} // namespace zem::msglib
