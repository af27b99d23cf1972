#pragma once

#include "tool/table/TableDecoder.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zem::msglib::tool {

/// All messages of a module in one language.
struct LanguageTable {
    std::optional<std::uint32_t> language; ///< 16 bits; not known for a table in a file of its own
    TableTexts texts;
};

/// Returns whether the bytes of a file are a module or a message table, not a text.
bool holdsTables(std::string_view bytes) noexcept;

/// Reads the message tables of a module for ELF (a program, a shared library, a plug-in or an
/// object, of any machine and byte order), or one table in a file of its own.
///
/// @param name   of the file, for error messages
/// @param bytes  of the file; any bytes are safe
/// @return one table for each language, in the order of their numbers; none if there is no message
/// @throws CannotRun if the file is neither, or if it is damaged
std::vector<LanguageTable> readTables(const std::string& name, std::string bytes);

} // namespace zem::msglib::tool
