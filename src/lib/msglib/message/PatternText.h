#pragma once

#include "base/Scanning.h"

#include <cstddef>
#include <string_view>

namespace zem::msglib {

/// Returns the position of the first byte from `position` on that is no letter of a keyword.
inline std::size_t endOfKeyword(std::string_view pattern, std::size_t position) noexcept {
    while (position < pattern.size() && pattern[position] >= 'a' && pattern[position] <= 'z') {
        ++position;
    }
    return position;
}

/// Reads static text from `position` on, with its quoting resolved, piece by piece into `sink`.
///
/// @return where it stopped: at a brace, or at the size of `pattern`
template <class Sink>
std::size_t scanStatic(std::string_view pattern, std::size_t position, Sink&& sink) {
    while (position < pattern.size()) {
        const std::size_t syntax = findSyntax(pattern, position, quote);
        if (syntax > position) {
            sink(pattern.substr(position, syntax - position));
        }
        position = syntax;
        if (position == pattern.size() || pattern[position] != quote) {
            break;
        }
        if (holdsAt(pattern, position + 2, quote)) {
            sink(pattern.substr(position + 1, 1));
            position += 3;
        } else {
            sink(pattern.substr(position, 1));
            position += holdsAt(pattern, position + 1, quote) ? 2 : 1;
        }
    }
    return position;
}

/// Reads the index, type or style of a placeholder from `position` on, with doubled quotes
/// resolved, piece by piece into `sink`.
///
/// @return where it stopped: at `endByte`, at the brace that ends the placeholder, or at the size
/// of
///         `pattern`
template <class Sink>
std::size_t scanElement(std::string_view pattern, std::size_t position, char endByte, Sink&& sink) {
    std::size_t depth = 1;
    std::size_t taken = position; // what stands in front of it needs no more care
    while ((position = findSyntax(pattern, position, endByte)) < pattern.size()) {
        const char c = pattern[position];
        if (c == quote && holdsAt(pattern, position + 2, quote)) {
            position += 3;
            continue;
        }
        if (c == quote && holdsAt(pattern, position + 1, quote)) {
            sink(pattern.substr(taken, position + 1 - taken));
            taken = position += 2;
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
        ++position;
    }
    sink(pattern.substr(taken, position - taken));
    return position;
}

} // namespace zem::msglib
