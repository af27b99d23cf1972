#pragma once

#include "tool/diagnostics/Diagnostics.h"
#include "tool/text/SourceFile.h"

#include <cstddef>
#include <memory>
#include <string>

namespace zem::msglib::tool {

/// A file as far as it can be read.
struct ReadSource {
    std::unique_ptr<const SourceFile> file;
    bool isWhole; ///< whether all of it could be read; if not, that has been reported
};

/// Reads, decodes and normalises a file that the user wrote.
///
/// @param path      as diagnostics are to name the file; `-` is standard input
/// @param encoding  of a file without a mark that is not UTF-16; empty for UTF-8
/// @param number    the rank among the files of the run
/// @throws CannotRun if the file cannot be read or there is no such encoding
ReadSource readSource(const std::string& path, const std::string& encoding, std::size_t number,
                      Diagnostics& diagnostics);

/// Does the same with the bytes of a file of any `name`.
ReadSource readSource(const std::string& name, std::string bytes, const std::string& encoding,
                      std::size_t number, Diagnostics& diagnostics);

} // namespace zem::msglib::tool
