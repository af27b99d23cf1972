#pragma once

#include <string>

namespace zem::msglib::tool {

/// Returns all bytes of a file.
///
/// @param path  of the file; `-` is standard input
/// @throws CannotRun if it cannot be opened or read to its end
std::string readBytes(const std::string& path);

} // namespace zem::msglib::tool
