#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace zem::msglib {

/// A sink for the pieces of a text that a reader delivers. A single piece is borrowed; several
/// pieces, which occur where quoting was resolved, are joined in a copy. Moving the object doesn't
/// move the bytes of `text`.
class ScannedText {
public:
    /// Appends a piece.
    void operator()(std::string_view piece) {
        if (joined_ != nullptr) {
            joined_->append(piece);
        } else if (first_.empty()) {
            first_ = piece;
        } else if (!piece.empty()) {
            joined_ = std::make_unique<std::string>(first_);
            joined_->append(piece);
        }
    }

    /// Returns the text, which is valid as long as this object and the scanned pattern.
    std::string_view text() const noexcept { return isCopy() ? *joined_ : first_; }

    /// Returns whether the text is a copy.
    bool isCopy() const noexcept { return joined_ != nullptr; }

private:
    std::string_view first_;
    std::unique_ptr<std::string> joined_;
};

} // namespace zem::msglib
