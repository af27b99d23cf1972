#include "tool/pattern/ChoiceIntervals.h"

#include "msglib/ChoiceFormat.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zem::msglib::tool {

NumberInterval NumberInterval::within(const NumberInterval& other) const noexcept {
    NumberInterval both = *this;
    if (other.low && (!both.low || *other.low > *both.low)) {
        both.low = other.low;
    }
    if (other.high && (!both.high || *other.high < *both.high)) {
        both.high = other.high;
    }
    return both;
}

double NumberInterval::sample() const noexcept {
    if (!low && !high) {
        return 0.0;
    }
    if (!low) {
        const double whole = std::ceil(*high) - 1.0;
        return whole < *high ? whole
                             : std::nextafter(*high, -std::numeric_limits<double>::infinity());
    }
    constexpr double mostScale = 1e16;
    for (double scale = 1.0; scale <= mostScale; scale *= 10.0) {
        const double rounded = std::ceil(*low * scale) / scale;
        if (contains(rounded)) {
            return rounded + 0.0; // no negative zero
        }
    }
    return *low;
}

// The library starts at the first entry. It continues to the next entry unless the value is below
// the limit of that one, where it stops.
std::vector<ChoiceInterval> intervalsOf(const Placeholder& choice) {
    const auto& entries = choice.entries;
    std::vector<ChoiceInterval> intervals;
    std::size_t highest = 0; // entry with the highest limit so far
    for (std::size_t number = 0; number < entries.size(); ++number) {
        highest = entries[number].limit > entries[highest].limit ? number : highest;
        ChoiceInterval interval{{entries[highest].limit}, highest, number + 1};
        if (number + 1 < entries.size()) {
            interval.numbers.high = entries[number + 1].limit;
        }
        if (number == 0) {
            interval.numbers.low.reset();
            if (entries.size() > 1 && entries[1].limit < entries[0].limit) {
                interval.numbers.high = entries[0].limit;
                interval.high = 0;
            }
        }
        intervals.push_back(interval);
    }
    return intervals;
}

double writtenLimit(const ChoiceEntry& entry) {
    return entry.separator == '#' ? entry.limit : ChoiceFormat::previousDouble(entry.limit);
}

} // namespace zem::msglib::tool
