#include "tool/text/Names.h"

#include <algorithm>
#include <numeric>

// A wrong word and the known names go in, the name that was probably meant comes out. The distance
// of two words is the number of their insertions, deletions and replacements. Limits on the length
// of words and the number of names bound the time.

namespace zem::msglib::tool {

namespace {

// Longer words are not treated as misspellings. This and the limit on the number of names bound the
// time.
constexpr std::size_t longestWord = 64;
constexpr std::size_t mostCandidates = 256;

char lower(char byte) noexcept {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

/// Returns the number of insertions, deletions and replacements that turn one word into the other.
std::size_t distance(std::string_view one, std::string_view other) {
    std::vector<std::size_t> row(other.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (const char byte : one) {
        std::size_t diagonal = row.front()++;
        for (std::size_t index = 0; index < other.size(); ++index) {
            const std::size_t replaced = diagonal + (lower(byte) == lower(other[index]) ? 0 : 1);
            diagonal = row[index + 1];
            row[index + 1] = std::min({replaced, diagonal + 1, row[index] + 1});
        }
    }
    return row.back();
}

} // namespace

std::string lowerCase(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), lower);
    return result;
}

bool equalInAnyCase(std::string_view one, std::string_view other) noexcept {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char left, char right) { return lower(left) == lower(right); });
}

bool isIdentifier(std::string_view text) {
    const auto isDigit = [](char byte) { return byte >= '0' && byte <= '9'; };
    return !text.empty() && !isDigit(text.front()) &&
           std::all_of(text.begin(), text.end(), [&](char byte) {
               const bool isLetter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
               return isLetter || isDigit(byte) || byte == '_';
           });
}

std::optional<std::string_view> nearest(std::string_view word,
                                        const std::vector<std::string_view>& candidates) {
    if (word.size() > longestWord) {
        return std::nullopt;
    }
    std::optional<std::string_view> best;
    std::size_t least = (word.size() + 2) / 3 + 1;
    for (const std::string_view candidate : candidates) {
        const std::size_t longer = std::max(word.size(), candidate.size());
        const std::size_t shorter = std::min(word.size(), candidate.size());
        if (longer - shorter >= least) {
            continue; // at least so many insertions or deletions are needed
        }
        const std::size_t steps = distance(word, candidate);
        if (steps < least) {
            least = steps;
            best = candidate;
        }
    }
    return best;
}

DeclaredNames::DeclaredNames(std::initializer_list<Entry> predefined) {
    for (const Entry& entry : predefined) {
        declare(entry.name, entry.number);
    }
}

void DeclaredNames::declare(std::string_view name, std::uint32_t number) {
    entries_[lowerCase(name)] = {std::string(name), number};
}

const DeclaredNames::Entry* DeclaredNames::find(std::string_view name) const {
    const auto found = entries_.find(lowerCase(name));
    return found == entries_.end() ? nullptr : &found->second;
}

std::optional<std::string_view> DeclaredNames::nearestTo(std::string_view name) const {
    if (entries_.size() > mostCandidates) {
        return std::nullopt;
    }
    std::vector<std::string_view> names;
    for (const auto& [key, entry] : entries_) {
        names.emplace_back(entry.name);
    }
    return nearest(name, names);
}

} // namespace zem::msglib::tool
