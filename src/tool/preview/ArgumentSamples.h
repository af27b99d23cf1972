#pragma once

#include "tool/catalogue/CallSignatures.h"
#include "tool/pattern/PatternTree.h"
#include "tool/text/ArgumentText.h"

#include <cstddef>
#include <vector>

namespace zem::msglib::tool {

/// A value for an argument.
struct Sample {
    WrittenArgument argument;
    double number; ///< as a choice reads it; NaN if it is a text
};

/// Values for one argument that show what it can make of a message.
struct ArgumentSamples {
    /// One for each interval between the limits of all choices that the argument decides; empty if
    /// it decides none.
    std::vector<Sample> cases;

    /// At least one. They follow from how the argument is shown: numbers that are negative, zero,
    /// one, large or have decimals, those at, between and around the limits, times before and after
    /// noon, a text.
    std::vector<Sample> values;
};

/// Arguments with a higher index get no samples.
constexpr std::size_t mostSampledArguments = 1000;

/// Returns the samples of all arguments of a pattern, by index. It takes time in proportion to the
/// pattern, but for the sorting of limits.
///
/// @param parameters  what is known about the arguments besides; may be fewer
std::vector<ArgumentSamples> samplesOf(const PatternTree& tree,
                                       const std::vector<Parameter>& parameters);

/// Returns a number as a sample.
Sample numberSample(double value);

} // namespace zem::msglib::tool
