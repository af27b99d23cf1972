#pragma once

#include "tool/catalogue/Catalogue.h"
#include "tool/diagnostics/Diagnostics.h"

#include <vector>

namespace zem::msglib::tool {

/// Checks what concerns the identifiers, symbols, facilities and languages of several messages.
///
/// @param catalogues  all of one module, which are checked together
void checkIdentifiers(const std::vector<Catalogue>& catalogues, Diagnostics& diagnostics);

} // namespace zem::msglib::tool
