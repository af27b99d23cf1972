#pragma once

#include "tool/catalogue/CallSignatures.h"
#include "tool/pattern/PatternTree.h"
#include "tool/preview/Rendering.h"
#include "tool/text/ArgumentText.h"

#include <string>
#include <vector>

namespace zem::msglib::tool {

/// A text that a message can become.
struct SampleRow {
    std::vector<WrittenArgument> arguments; ///< that made it, by index
    Rendering rendering;
};

/// The different texts that a message can become, each with the arguments that made it first.
struct SampleTable {
    std::vector<SampleRow> rows; ///< at least one

    /// What was left out; without "note:". Every text of every choice that can be chosen is among
    /// the rows, unless a note says that there are too many.
    std::vector<std::string> notes;
};

/// Renders a message with samples of its arguments.
///
/// What choices can pick is combined as long as that gives no more than a few hundred combinations;
/// beyond that, each text of a choice is shown once. The values that are shown vary one at a time.
/// For any pattern, the work is bounded by some 300 MiB of patterns and texts, which long patterns
/// reach after fewer rows.
///
/// @param parameters  what is known about the arguments besides the pattern; may be fewer
SampleTable sampleTableOf(const PatternTree& tree, const std::vector<Parameter>& parameters);

} // namespace zem::msglib::tool
