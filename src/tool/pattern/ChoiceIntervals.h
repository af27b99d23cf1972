#pragma once

#include "tool/pattern/PatternTree.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace zem::msglib::tool {

/// The numbers that are at least `low` and below `high`. A missing bound means no limit on that
/// side.
struct NumberInterval {
    std::optional<double> low = std::nullopt;
    std::optional<double> high = std::nullopt;

    bool isEmpty() const noexcept { return low && high && !(*low < *high); }
    bool contains(double value) const noexcept {
        return (!low || value >= *low) && (!high || value < *high);
    }

    /// Returns the numbers that are in both intervals.
    NumberInterval within(const NumberInterval& other) const noexcept;

    /// Returns one of its numbers, with as few decimals as possible. The interval must not be
    /// empty.
    double sample() const noexcept;
};

/// The numbers for which an entry of a choice is chosen.
struct ChoiceInterval {
    NumberInterval numbers; ///< empty for an entry that is never chosen
    std::size_t low;        ///< the number of the entry whose limit is the lower bound
    std::size_t high;       ///< the number of the entry whose limit is the upper bound, if any
};

/// Returns the interval of each entry: from the highest limit so far up to the limit of the next
/// entry, whether limits ascend or not. The first entry is also chosen for all lower numbers.
std::vector<ChoiceInterval> intervalsOf(const Placeholder& choice);

/// Returns the limit of an entry as written: the number before its separator.
double writtenLimit(const ChoiceEntry& entry);

} // namespace zem::msglib::tool
