#pragma once

#include "base/Scanning.h"

#include <cstddef>
#include <string_view>

namespace zem::msglib {

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

} // namespace zem::msglib
