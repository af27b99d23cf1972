#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace zem::msglib::tool {

/// A compiled message table: the UTF-16 text of each identifier, in ascending order.
using MessageTable = std::map<std::uint32_t, std::u16string>;

/// Reads the table that the message compiler has written.
///
/// @throws std::runtime_error if the file cannot be read or is no table of UTF-16 texts
MessageTable readTable(const std::string& path);

/// Returns the bytes of a table in which no block has more than 8 entries.
///
/// Blocks can be searched and their entries only be walked, so short blocks are what makes a
/// look-up fast.
std::string tableBytes(const MessageTable& table);

} // namespace zem::msglib::tool
