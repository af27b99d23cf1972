#pragma once

#include "tool/text/ArgumentText.h"

#include <string>
#include <string_view>
#include <vector>

namespace zem::msglib::tool {

/// What a program shows for a message.
struct Rendering {
    std::string text;
    bool isFailure; ///< whether the text is the text of a failure in place of the message
};

/// Renders a pattern with the library. If rendering fails, the text is the text of the failure, as
/// for a message from a catalogue.
Rendering render(std::string_view pattern, const std::vector<WrittenArgument>& arguments);

/// Returns what a program shows for a message without a text in the language that is looked up.
Rendering renderMissing();

} // namespace zem::msglib::tool
