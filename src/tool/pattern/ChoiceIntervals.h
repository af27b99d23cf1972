#pragma once

#include "tool/pattern/PatternTree.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace zem::msglib::tool {

/// The numbers from `low` on and below `high`; without a bound, there is no end on that side.
struct NumberInterval {
    std::optional<double> low = std::nullopt;
    std::optional<double> high = std::nullopt;

    bool isEmpty() const noexcept { return low && high && !(*low < *high); }
    bool contains(double value) const noexcept {
        return (!low || value >= *low) && (!high || value < *high);
    }

    /// Returns the numbers that are in both.
    NumberInterval within(const NumberInterval& other) const noexcept;

    /// Returns one of its numbers, with as few decimals as possible. The interval is not empty.
    double sample() const noexcept;
};

/// The numbers that a choice's entry serves.
struct ChoiceInterval {
    NumberInterval numbers; ///< empty for an entry that is never chosen
    std::size_t low;        ///< the number of the entry whose limit is the lower bound
    std::size_t high;       ///< the same of the upper bound, if there is one
};

/// Returns the interval of each entry: up to the limit of the next one, and from the highest limit
/// so far on, whether limits ascend or not. The first entry serves everything below its limit too.
std::vector<ChoiceInterval> intervalsOf(const Placeholder& choice);

/// Returns the limit of an entry as written: the number before its separator.
double writtenLimit(const ChoiceEntry& entry);

} // namespace zem::msglib::tool
