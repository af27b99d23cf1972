#include "base/BraceIndex.h"

#include "base/Scanning.h"

#include <algorithm>

namespace zem::msglib {

BraceIndex::BraceIndex(std::string_view text) {
    std::vector<std::size_t> open; // indexes of the pairs without a closing brace yet
    for (std::size_t position = 0; (position = findSyntax(text, position, '}')) < text.size();
         ++position) {
        const char* const brace = text.data() + position;
        if (*brace == '{') {
            open.push_back(pairs_.size());
            pairs_.push_back({brace, nullptr});
        } else if (!open.empty()) {
            pairs_[open.back()].closing = brace;
            open.pop_back();
        }
    }
}

std::size_t BraceIndex::endOf(std::string_view part, std::size_t position) const noexcept {
    const auto pair = std::lower_bound(
        pairs_.begin(), pairs_.end(), part.data() + position,
        [](const Pair& candidate, const char* brace) { return candidate.opening < brace; });
    if (pair == pairs_.end() || pair->closing == nullptr) {
        return part.size();
    }
    return std::min(static_cast<std::size_t>(pair->closing + 1 - part.data()), part.size());
}

} // namespace zem::msglib
