#pragma once

#include "McFile.h"

#include <cstddef>
#include <string>
#include <vector>

namespace zem::msglib::tool {

/// Where the table of one language lies in the file of all tables.
struct TablePlace {
    std::uint32_t language;
    std::size_t offset;
    std::size_t size;
};

/// Returns the header of a catalogue: its identifiers as constants, and its registration function.
///
/// @param name  the catalogue's file name without ".mc"; the function's name is this one in upper
/// camel case
std::string headerText(const std::string& name, const McFile& file);

/// Returns the source file that embeds the tables and registers every facility of the catalogue.
///
/// @param tablesPath  the file of all tables, as the assembler is to find it
std::string sourceText(const std::string& name, const McFile& file, const std::string& tablesPath,
                       const std::vector<TablePlace>& places);

/// Returns the resource script that gives a module its message tables.
///
/// @param tablePaths  the file of each language's table
std::string resourceText(const std::map<std::uint32_t, std::string>& tablePaths);

} // namespace zem::msglib::tool
