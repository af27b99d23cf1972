#pragma once

#include "base/BraceIndex.h"
#include "base/Extraction.h"
#include "base/Failure.h"
#include "base/ScannedText.h"
#include "base/Scanning.h"

#include <cstddef>
#include <string_view>

namespace zem::msglib {

/// Reads a message pattern in the order of its grammar: text, then the index, type, style and end
/// of a placeholder, then text again. It borrows the pattern.
///
/// Sinks are called with pieces of the pattern itself, so the address of a piece gives its
/// position. A copy continues at the position of the original.
///
///     PlaceholderReader reader(pattern);
///     while (reader.readText(text)) {
///         const int index = reader.readIndex();
///         reader.readType(type);
///         reader.readStyle(style);
///         reader.readEnd();
///     }
class PlaceholderReader {
public:
    /// Begins at the start of `pattern`.
    ///
    /// @param braces  the matching braces of `pattern`, if they are known
    explicit PlaceholderReader(std::string_view pattern,
                               const BraceIndex* braces = nullptr) noexcept
        : pattern_(pattern),
          braces_(braces) {}

    /// Begins at `position` of `pattern`.
    PlaceholderReader(std::string_view pattern, std::size_t position) noexcept
        : pattern_(pattern),
          position_(position) {}

    /// Returns the position of the next byte to read; at the end, the size of the pattern.
    std::size_t position() const noexcept { return position_; }

    /// Returns the pattern from `position` on.
    std::string_view from(std::size_t position) const noexcept { return pattern_.substr(position); }

    /// Returns the matching braces that the constructor was given, or null.
    const BraceIndex* braces() const noexcept { return braces_; }

    /// Reads static text up to the next placeholder and resolves its quoting.
    ///
    /// @return whether there is a placeholder; `position` is then that of its brace
    /// @throws PatternFailure "unexpected closing brace", at that brace
    template <class Sink>
    bool readText(Sink&& sink);

    /// Reads the opening brace and the index of a placeholder, as formatted extraction from a
    /// stream reads an `int`.
    ///
    /// @throws PatternFailure "Illegal argument in format string", at the start of the index, if
    ///         there is no such number
    int readIndex();

    /// Skips the brace that ends a placeholder, if it is the next byte.
    ///
    /// @return whether it is
    bool skipEnd() noexcept;

    /// Reads type, style and end of a placeholder if type and style consist of lower-case letters,
    /// as keywords do.
    ///
    /// @return whether they do; if not, the position is unchanged
    bool readKeywords(std::string_view& type, std::string_view& style) noexcept;

    /// Reads the type of a placeholder, if there is one, and resolves doubled apostrophes.
    template <class Sink>
    void readType(Sink&& sink);

    /// Reads the style of a placeholder, if there is one, and resolves doubled apostrophes.
    template <class Sink>
    void readStyle(Sink&& sink);

    /// Reads the brace that ends a placeholder.
    ///
    /// @throws PatternFailure "Illegal argument in format string" at the end of the pattern
    void readEnd();

private:
    bool holds(char byte) const noexcept { return holdsAt(pattern_, position_, byte); }
    std::size_t endOfLetters(std::size_t position) const noexcept;
    int extractIndex();
    template <class Sink>
    void readSegment(char endByte, Sink&& sink);

    std::string_view pattern_;
    std::size_t position_ = 0;
    const BraceIndex* braces_ = nullptr;
};

template <class Sink>
bool PlaceholderReader::readText(Sink&& sink) {
    for (;;) {
        const std::size_t begin = position_;
        position_ = findSyntax(pattern_, begin, quote);
        if (position_ > begin) {
            sink(pattern_.substr(begin, position_ - begin));
        }
        if (position_ == pattern_.size() || holds('{')) {
            return position_ < pattern_.size();
        }
        if (holds('}')) {
            raise(Failure::UnexpectedClosingBrace, position_);
        }
        if (holdsAt(pattern_, position_ + 2, quote)) {
            sink(pattern_.substr(position_ + 1, 1));
            position_ += 3;
        } else {
            sink(pattern_.substr(position_, 1));
            position_ += holdsAt(pattern_, position_ + 1, quote) ? 2 : 1;
        }
    }
}

// Plain digits, by far the most frequent index, need no extraction from a stream.
inline int PlaceholderReader::readIndex() {
    int index = 0;
    const std::size_t begin = position_ + 1;
    const std::size_t end = begin + readDigits(pattern_, begin, index);
    if (end == begin || !(holdsAt(pattern_, end, '}') || holdsAt(pattern_, end, ','))) {
        return extractIndex();
    }
    position_ = end;
    return index;
}

inline bool PlaceholderReader::skipEnd() noexcept {
    const bool ends = holds('}');
    position_ += ends ? 1 : 0;
    return ends;
}

inline std::size_t PlaceholderReader::endOfLetters(std::size_t position) const noexcept {
    while (position < pattern_.size() && pattern_[position] >= 'a' && pattern_[position] <= 'z') {
        ++position;
    }
    return position;
}

inline bool PlaceholderReader::readKeywords(std::string_view& type,
                                            std::string_view& style) noexcept {
    const std::size_t begin = position_ + 1;
    const std::size_t typeEnd = holds(',') ? endOfLetters(begin) : position_;
    const std::size_t end = holdsAt(pattern_, typeEnd, ',') ? endOfLetters(typeEnd + 1) : typeEnd;
    if (end == position_ || !holdsAt(pattern_, end, '}')) {
        return false;
    }
    type = pattern_.substr(begin, typeEnd - begin);
    style = end > typeEnd ? pattern_.substr(typeEnd + 1, end - typeEnd - 1) : std::string_view();
    position_ = end + 1;
    return true;
}

template <class Sink>
void PlaceholderReader::readType(Sink&& sink) {
    if (holds(',')) {
        ++position_;
        readSegment(',', sink);
    }
}

template <class Sink>
void PlaceholderReader::readStyle(Sink&& sink) {
    if (holds(',')) {
        ++position_;
        readSegment('}', sink);
    }
}

// Reads up to `endByte`, the brace that ends the placeholder or the end of the pattern.
template <class Sink>
void PlaceholderReader::readSegment(char endByte, Sink&& sink) {
    std::size_t depth = 1;
    std::size_t pieceBegin = position_; // everything before it was delivered
    while ((position_ = findSyntax(pattern_, position_, endByte)) < pattern_.size()) {
        const char c = pattern_[position_];
        if (c == quote && holdsAt(pattern_, position_ + 2, quote)) {
            position_ += 3;
            continue;
        }
        if (c == quote && holdsAt(pattern_, position_ + 1, quote)) {
            sink(pattern_.substr(pieceBegin, position_ + 1 - pieceBegin));
            pieceBegin = position_ += 2;
            continue;
        }
        if (c == '{' && endByte == '}' && braces_ != nullptr) {
            position_ = braces_->endOf(pattern_, position_);
            continue;
        }
        if (c == '{') {
            ++depth;
        } else if (c == '}') {
            --depth;
        }
        if (depth == 0 || (c == endByte && c != '}')) {
            break;
        }
        ++position_;
    }
    sink(pattern_.substr(pieceBegin, position_ - pieceBegin));
}

} // namespace zem::msglib
