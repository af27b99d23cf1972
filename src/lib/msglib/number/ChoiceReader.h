#pragma once

#include "base/Binary64.h"
#include "base/BraceIndex.h"
#include "base/ScannedText.h"
#include "base/Scanning.h"

#include <cstddef>
#include <string_view>

namespace zem::msglib {

/// Reads a choice pattern segment by segment: a limit, then its text. It borrows the pattern.
class ChoiceReader {
public:
    /// Begins at the start of `pattern`.
    ///
    /// @param braces  the matching braces of `pattern`, if they are known
    explicit ChoiceReader(std::string_view pattern, const BraceIndex* braces = nullptr) noexcept
        : pattern_(pattern),
          braces_(braces) {}

    /// Returns the position of the next byte to read; at the end, one more than the pattern's size.
    std::size_t position() const noexcept { return position_; }

    /// Reads the limit of the next segment and the separator after it.
    ///
    /// @throws PatternFailure "Syntax error in choice format.", at the start of the segment, if it
    ///         has no separator
    double readLimit();

    /// Reads the text after a limit and the byte that ends it, and resolves the quoting.
    ///
    /// @param sink  called with each piece of the text, a part of the pattern
    /// @return whether another segment follows
    template <class Sink>
    bool readText(Sink&& sink);

private:
    std::string_view pattern_;
    const BraceIndex* braces_;
    std::size_t position_ = 0;
};

/// Finds the segment for a value. The caller passes the limits in their order.
class ChoiceSearch {
public:
    explicit ChoiceSearch(double value) noexcept : value_(value) {}

    /// Returns whether the segment with `limit` replaces the one chosen so far.
    bool accepts(double limit) noexcept;

private:
    double value_;
    double limit_ = 0.0; // of the segment chosen so far
    bool hasChosen_ = false;
    bool isDecided_ = false;
};

/// Returns the text that a `ChoiceFormat` of `pattern` chooses for `value`. It reads the whole
/// pattern, so a syntax error is reported whatever the value.
///
/// @param braces  the matching braces of `pattern`, if they are known
/// @throws PatternFailure "Syntax error in choice format."
ScannedText chooseText(std::string_view pattern, double value, const BraceIndex* braces);

template <class Sink>
bool ChoiceReader::readText(Sink&& sink) {
    std::size_t depth = 1;
    std::size_t pieceBegin = position_; // everything before it was delivered
    while ((position_ = findSyntax(pattern_, position_, '|')) < pattern_.size()) {
        const char c = pattern_[position_];
        if (c == quote && holdsAt(pattern_, position_ + 1, quote)) {
            sink(pattern_.substr(pieceBegin, position_ + 1 - pieceBegin));
            pieceBegin = position_ += 2;
            continue;
        }
        if (c == quote && pattern_.size() - position_ > 2) {
            sink(pattern_.substr(pieceBegin, position_ - pieceBegin));
            sink(pattern_.substr(position_ + 1, 1));
            pieceBegin = position_ += 3;
            continue;
        }
        if (c == '{' && braces_ != nullptr) {
            position_ = braces_->endOf(pattern_, position_);
            continue;
        }
        if (c == '{') {
            ++depth;
        } else if (c == '}') {
            --depth;
        }
        if (depth == 0 || (c == '|' && depth == 1)) {
            break;
        }
        ++position_;
    }
    sink(pattern_.substr(pieceBegin, position_ - pieceBegin));
    return position_++ < pattern_.size();
}

} // namespace zem::msglib
