#pragma once

#include "platform/portable/Bytes.h"

#include <cstdint>
#include <map>
#include <stdexcept>
#include <string>

namespace zem::msglib::tool {

/// Why bytes are no message table, as a part of a sentence: "its block 3 lies outside of it".
class BrokenTable : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The texts of messages by their identifiers. They are UTF-8 with the line ends of the table, which
/// are CR LF.
using TableTexts = std::map<std::uint32_t, std::string>;

/// Tells whether bytes begin with the number of blocks of a table and have room for them.
bool mayBeTable(platform::Bytes bytes) noexcept;

/// Decodes a message table, which may be any bytes, in time linear in their number.
///
/// An entry without text is left out, since it counts as no message. Unpaired surrogates become
/// U+FFFD, as they do when a message is rendered.
///
/// @throws BrokenTable  if blocks or entries lie outside of the table, are out of order or overlap,
///                      or if an entry has no known form
TableTexts decodeTable(platform::Bytes table);

} // namespace zem::msglib::tool
