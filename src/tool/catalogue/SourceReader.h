#pragma once

#include "tool/diagnostics/Diagnostics.h"
#include "tool/text/SourceFile.h"

#include <cstddef>
#include <memory>
#include <string>

namespace zem::msglib::tool {

/// A file, up to the first byte that cannot be read.
struct ReadSource {
    std::unique_ptr<const SourceFile> file;
    bool isWhole; ///< whether all of it could be read; if not, an error was reported
};

/// Reads, decodes and normalises a file that the user wrote.
///
/// @param path      also the name of the file in diagnostics; `-` is standard input
/// @param encoding  of a file without a byte order mark that is not UTF-16; empty for UTF-8
/// @param number    the rank among the files of the run
/// @throws CannotRun if the file cannot be read or there is no such encoding
ReadSource readSource(const std::string& path, const std::string& encoding, std::size_t number,
                      Diagnostics& diagnostics);

/// Does the same with `bytes` in place of the content of a file.
ReadSource readSource(const std::string& name, std::string bytes, const std::string& encoding,
                      std::size_t number, Diagnostics& diagnostics);

} // namespace zem::msglib::tool
