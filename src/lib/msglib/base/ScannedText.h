#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace zem::msglib {

/// A text as a reader hands it out, piece by piece. It borrows a single piece and joins several,
/// as there are where quoting was resolved, in a copy of its own. Moving it leaves `text` where it
/// is in memory.
class ScannedText {
public:
    /// Adds a piece.
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

    /// Returns the text, which lives as long as this object and what was scanned.
    std::string_view text() const noexcept { return isCopy() ? *joined_ : first_; }

    /// Returns whether the text is a copy.
    bool isCopy() const noexcept { return joined_ != nullptr; }

private:
    std::string_view first_;
    std::unique_ptr<std::string> joined_;
};

} // namespace zem::msglib
