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
    std::optional<std::uint32_t>
        language; ///< 16 bits; a table in a file of its own does not have it
    TableTexts texts;
};

/// Tells whether the bytes of a file are a module or a message table, not a text.
bool holdsTables(std::string_view bytes) noexcept;

/// Reads the message tables of a module for ELF (a program, a shared library, a plug-in or an object,
/// of any machine, also in an order of bytes other than this machine's), or one table in a file of
/// its own.
///
/// @param name   of the file, for the words of errors
/// @param bytes  of the file, whatever they are
/// @return one table for each language, in the order of their numbers; none if there is no message
/// @throws CannotRun if the file is neither, or if it is damaged
std::vector<LanguageTable> readTables(const std::string& name, std::string bytes);

} // namespace zem::msglib::tool
