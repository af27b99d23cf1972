#pragma once

#include <string>
#include <string_view>

namespace zem::msglib::tool {

/// The content of a file as UTF-8.
struct DecodedText {
    std::string text;     ///< valid UTF-8, up to the first bytes that are wrong
    std::string problem;  ///< the error in the bytes after that; empty if all are decoded
    std::string encoding; ///< the name of the encoding that was used
};

/// Decodes the bytes of a message text file.
///
/// A byte order mark decides the encoding, and is removed. Without one, UTF-16 is recognised by its
/// first character, which is ASCII in every message text file. Other files have the encoding
/// `name`, which `iconv` must know, or UTF-8 if it is empty.
///
/// @throws CannotRun if there is no encoding of that name
DecodedText decode(std::string bytes, const std::string& name);

} // namespace zem::msglib::tool
