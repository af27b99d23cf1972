#pragma once

#include "tool/pattern/ChoiceIntervals.h"
#include "tool/pattern/PatternTree.h"

#include <string>
#include <vector>

namespace zem::msglib::tool {

/// The format of a placeholder in words.
struct FormatDescription {
    std::string summary;              ///< without the argument, such as "a number by `0.0`"
    std::vector<std::string> details; ///< lines of their own
};

/// Describes any placeholder except a choice: the pattern of a style keyword, groups and digits of
/// numbers, the fields of dates, each with an example that the library renders.
FormatDescription describeFormat(const Placeholder& placeholder);

/// Describes when an entry of a choice is chosen: `from 1, below 2`.
///
/// @param interval  of this entry
std::string describeInterval(const Placeholder& choice, std::size_t entry,
                             const ChoiceInterval& interval);

} // namespace zem::msglib::tool
