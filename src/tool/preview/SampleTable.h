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
    std::vector<WrittenArgument> arguments; ///< of this text, by index
    Rendering rendering;
};

/// The different texts that a message can become, each with the first arguments that were found for
/// it.
struct SampleTable {
    std::vector<SampleRow> rows; ///< at least one

    /// What was left out, without "note:". If no note reports too many texts, the rows contain
    /// every text of every choice that can be chosen.
    std::vector<std::string> notes;
};

/// Renders a message with samples of its arguments.
///
/// All combinations of the texts of choices are shown if there are at most a few hundred. If there
/// are more, each text of a choice is shown once. The shown values vary one at a time. For any
/// pattern, the work is bounded by some 300 MiB of patterns and texts, so long patterns get fewer
/// rows.
///
/// @param parameters  names and kinds of the arguments from comments; may be fewer
SampleTable sampleTableOf(const PatternTree& tree, const std::vector<Parameter>& parameters);

} // namespace zem::msglib::tool
