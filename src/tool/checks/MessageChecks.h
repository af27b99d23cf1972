#pragma once

#include "tool/catalogue/Catalogue.h"
#include "tool/diagnostics/Diagnostics.h"

#include <vector>

namespace zem::msglib::tool {

/// Checks the patterns of all messages, and whether the texts of a message in other languages use
/// the same arguments as the text that is looked up. It takes time linear in the length of all
/// texts, and shows its progress on a terminal.
void checkMessages(const std::vector<Catalogue>& catalogues, Diagnostics& diagnostics);

} // namespace zem::msglib::tool
