#pragma once

#include "tool/catalogue/Catalogue.h"
#include "tool/catalogue/SourceReader.h"
#include "tool/diagnostics/Diagnostics.h"

#include <string>
#include <vector>

namespace zem::msglib::tool {

/// Reads the messages of a file, and reports everything that the format does not allow, in time
/// linear in the size of the file.
///
/// @return what could be read; nothing if `ReadSource::isWhole` is false
Catalogue readCatalogue(ReadSource source, Diagnostics& diagnostics);

/// Reads several files, in the given order.
///
/// @param encoding  of files without a byte order mark that are not UTF-16; empty for UTF-8
/// @throws CannotRun if a file cannot be read or there is no such encoding
std::vector<Catalogue> readCatalogues(const std::vector<std::string>& paths,
                                      const std::string& encoding, Diagnostics& diagnostics);

} // namespace zem::msglib::tool
