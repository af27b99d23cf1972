#pragma once

#include "tool/catalogue/Catalogue.h"
#include "tool/diagnostics/Diagnostics.h"

#include <vector>

namespace zem::msglib::tool {

/// Checks the patterns of all messages, and whether the texts of a message in other languages use
/// the arguments of the one that is looked up. It takes time in proportion to the length of all
/// texts, and shows on a terminal how far it is.
void checkMessages(const std::vector<Catalogue>& catalogues, Diagnostics& diagnostics);

} // namespace zem::msglib::tool
