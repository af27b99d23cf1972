#pragma once

#include "tool/pattern/ChoiceIntervals.h"
#include "tool/pattern/PatternTree.h"

#include <string>
#include <vector>

namespace zem::msglib::tool {

/// How a placeholder shows its argument, in words.
struct FormatWords {
    std::string summary;              ///< without the argument, such as "a number by `0.0`"
    std::vector<std::string> details; ///< lines of their own
};

/// Describes any placeholder but a choice: the pattern that a style word stands for, groups and
/// digits of numbers, the fields of dates, each with what the library makes of an example.
FormatWords formatWordsOf(const Placeholder& placeholder);

/// Describes when an entry of a choice is chosen: `from 1, below 2`.
///
/// @param interval  that of the entry
std::string intervalWords(const Placeholder& choice, std::size_t entry,
                          const ChoiceInterval& interval);

} // namespace zem::msglib::tool
