#pragma once

#include <string>
#include <string_view>

namespace zem::msglib::tool {

/// The UTF-8 that a file's bytes stand for.
struct DecodedText {
    std::string text;     ///< valid UTF-8, up to the first bytes that are wrong
    std::string problem;  ///< what is wrong with the bytes that follow; empty if all are decoded
    std::string encoding; ///< the name of the encoding that was taken
};

/// Decodes the bytes of a message text file.
///
/// A byte order mark decides, and is dropped. Without one, UTF-16 is known by its first character,
/// which is ASCII in every message text file. Other files are in the encoding `name`, any that
/// `iconv` knows, or in UTF-8 if it is empty.
///
/// @throws CannotRun if there is no encoding of that name
DecodedText decode(std::string bytes, const std::string& name);

} // namespace zem::msglib::tool
