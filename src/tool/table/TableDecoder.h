#pragma once

#include "platform/portable/Bytes.h"

#include <cstdint>
#include <map>
#include <stdexcept>
#include <string>

namespace zem::msglib::tool {

/// Thrown for bytes that are not a message table. The message is a part of a sentence: "its block 3
/// lies outside of it".
class BrokenTable : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The texts of messages by identifier, in UTF-8, with the line ends of the table, which are CR LF.
using TableTexts = std::map<std::uint32_t, std::string>;

/// Returns whether bytes begin with the number of blocks of a table and are long enough for them.
bool mayBeTable(platform::Bytes bytes) noexcept;

/// Decodes a message table in time linear in its size. Any bytes are safe.
///
/// An entry without text is left out, since it is not a message for the library. Unpaired
/// surrogates become U+FFFD, as they do when a message is rendered.
///
/// @throws BrokenTable  if blocks or entries lie outside of the table, are out of order or overlap,
///                      or if an entry has no known form
TableTexts decodeTable(platform::Bytes table);

} // namespace zem::msglib::tool
