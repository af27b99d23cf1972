#pragma once

#include "tool/text/ArgumentText.h"

#include <string>
#include <string_view>
#include <vector>

namespace zem::msglib::tool {

/// What a program shows for a message.
struct Rendering {
    std::string text;
    bool isFailure; ///< whether the text is the words of a failure in place of the message
};

/// Renders a pattern by the library. A failure becomes its words, as those of a message from a
/// catalogue do.
Rendering render(std::string_view pattern, const std::vector<WrittenArgument>& arguments);

/// Returns what a program shows for a message that the catalogue doesn't have in the language that
/// is looked up.
Rendering renderMissing();

} // namespace zem::msglib::tool
