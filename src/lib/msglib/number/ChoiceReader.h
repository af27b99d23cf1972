#pragma once

#include "base/Binary64.h"
#include "base/BraceIndex.h"
#include "base/ScannedText.h"
#include "base/Scanning.h"

#include <cstddef>
#include <string_view>

namespace zem::msglib {

/// Reads a choice pattern entry by entry: a limit, then its text. It borrows the pattern.
class ChoiceReader {
public:
    /// @param braces  where the braces of `pattern` close, if that is known
    explicit ChoiceReader(std::string_view pattern, const BraceIndex* braces = nullptr) noexcept
        : pattern_(pattern),
          braces_(braces) {}

    /// Returns the position of the next byte to read, at most one beyond the size of the pattern.
    std::size_t position() const noexcept { return position_; }

    /// Reads the least value of the next entry, and passes the separator after it.
    ///
    /// @throws PatternFailure "Syntax error in choice format." if no separator follows; its
    ///         position is where the entry begins
    double readLimit();

    /// Reads the text after a limit, with its quoting resolved, and passes what ends it.
    ///
    /// @param sink  called with each piece of the text, a part of the pattern
    /// @return whether another entry follows
    template <class Sink>
    bool readText(Sink&& sink);

private:
    std::string_view pattern_;
    const BraceIndex* braces_;
    std::size_t position_ = 0;
};

/// Finds the choice for a value among entries that are shown one by one, in their order.
class ChoiceSearch {
public:
    explicit ChoiceSearch(double value) noexcept : value_(value) {}

    /// Returns whether the next entry, from `limit` on, takes the place of the one before.
    bool takes(double limit) noexcept;

private:
    double value_;
    double limit_ = 0.0; // of the entry chosen so far
    bool any_ = false;
    bool settled_ = false;
};

/// Returns the text that a `ChoiceFormat` of `pattern` chooses for `value`. All of `pattern` is
/// read, so that a wrong one fails whatever the value is.
///
/// @param braces  where the braces of `pattern` close, if that is known
/// @throws PatternFailure "Syntax error in choice format."
ScannedText chooseText(std::string_view pattern, double value, const BraceIndex* braces);

template <class Sink>
bool ChoiceReader::readText(Sink&& sink) {
    std::size_t depth = 1;
    std::size_t taken = position_; // everything before it needs no more care
    while ((position_ = findSyntax(pattern_, position_, '|')) < pattern_.size()) {
        const char c = pattern_[position_];
        if (c == quote && holdsAt(pattern_, position_ + 1, quote)) {
            sink(pattern_.substr(taken, position_ + 1 - taken));
            taken = position_ += 2;
            continue;
        }
        if (c == quote && pattern_.size() - position_ > 2) {
            sink(pattern_.substr(taken, position_ - taken));
            sink(pattern_.substr(position_ + 1, 1));
            taken = position_ += 3;
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
    sink(pattern_.substr(taken, position_ - taken));
    return position_++ < pattern_.size();
}

} // namespace zem::msglib
