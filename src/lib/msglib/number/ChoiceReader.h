#pragma once

#include "base/Binary64.h"
#include "base/Scanning.h"

#include <cstddef>
#include <string_view>

namespace zem::msglib {

/// Reads a choice pattern entry by entry: a limit, then its text. It borrows the pattern.
class ChoiceReader {
public:
    explicit ChoiceReader(std::string_view pattern) noexcept : pattern_(pattern) {}

    /// Reads the least value of the next entry.
    ///
    /// @throws std::runtime_error "Syntax error in choice format." if no separator follows
    double readLimit();

    /// Reads the text behind a limit, with its quoting resolved, piece by piece into `sink`.
    ///
    /// @return whether another entry follows
    template <class Sink>
    bool readText(Sink&& sink);

private:
    std::string_view pattern_;
    std::size_t position_ = 0;
};

/// Finds the choice for a value among entries that are shown one by one, in their order.
class ChoiceSearch {
public:
    explicit ChoiceSearch(double value) noexcept : value_(value) {}

    /// Tells whether the next entry, from `limit` on, takes the place of the one before.
    bool takes(double limit) noexcept;

private:
    double value_;
    double limit_ = 0.0; // of the entry chosen so far
    bool any_ = false;
    bool settled_ = false;
};

/// Returns the text that a `ChoiceFormat` of `pattern` chooses for `value`; it may lie in
/// `pattern`.
///
/// @throws std::runtime_error "Syntax error in choice format."
JoinedPieces chooseText(std::string_view pattern, double value);

template <class Sink>
bool ChoiceReader::readText(Sink&& sink) {
    std::size_t depth = 1;
    std::size_t taken = position_; // what stands in front of it needs no more care
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
