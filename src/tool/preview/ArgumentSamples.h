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
    double number; ///< the value as a choice reads it; NaN for a text
};

/// Values for one argument that show its effects on a message.
struct ArgumentSamples {
    /// One value for each interval between the limits of all choices by this argument; empty if
    /// there are none.
    std::vector<Sample> cases;

    /// At least one value. They depend on how the argument is shown: negative, zero, one, large and
    /// fractional numbers; numbers at, between and around the limits; times before and after noon;
    /// a text.
    std::vector<Sample> values;
};

/// Arguments with this index or a higher one get no samples.
constexpr std::size_t mostSampledArguments = 1000;

/// Returns the samples of all arguments of a pattern, by index, in time linear in the pattern
/// except for the sorting of limits.
///
/// @param parameters  names and kinds of the arguments from comments; may be fewer
std::vector<ArgumentSamples> samplesOf(const PatternTree& tree,
                                       const std::vector<Parameter>& parameters);

/// Returns a number as a sample.
Sample numberSample(double value);

} // namespace zem::msglib::tool
