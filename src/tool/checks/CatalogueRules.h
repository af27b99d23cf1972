#pragma once

#include "tool/catalogue/Catalogue.h"
#include "tool/diagnostics/Diagnostics.h"

#include <vector>

namespace zem::msglib::tool {

/// Checks the identifiers, symbols, facilities and languages of all messages against each other.
///
/// @param catalogues  all catalogues of one module
void checkIdentifiers(const std::vector<Catalogue>& catalogues, Diagnostics& diagnostics);

} // namespace zem::msglib::tool
