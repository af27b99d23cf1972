#pragma once

#include "tool/catalogue/Catalogue.h"

#include <cstdint>
#include <map>
#include <string>

namespace zem::msglib::tool {

/// The tables of a catalogue or module, by language.
using Tables = std::map<std::uint32_t, std::string>;

/// The names in the generated files of a catalogue.
struct CatalogueName {
    /// @param path  of the message text file
    explicit CatalogueName(const std::string& path);

    std::string file;         ///< the name of the message text file, without folders
    std::string stem;         ///< `file` without its last extension: the name of header and source
    std::string registration; ///< the function's name: register and the stem in upper camel case
    std::string calls; ///< the namespace of typed calls: by default, the stem in upper camel case
};

/// Returns the header of a catalogue: its identifiers as constants, and its registration function.
std::string headerText(const CatalogueName& name, const Catalogue& catalogue);

/// Returns the source file of a catalogue, which registers each of its facilities.
///
/// @param tables  to embed into an ELF module; empty if the module has them as resources
std::string sourceText(const CatalogueName& name, const Catalogue& catalogue, const Tables& tables);

/// The file name of the resource script.
constexpr const char* resourceFileName = "messages.rc";

/// Returns the name of the file with the table of a language, for a resource script.
std::string tableFileName(std::uint32_t language);

/// Returns the resource script that adds the tables to a module, from files in the folder of the
/// script.
std::string resourceText(const Tables& tables);

} // namespace zem::msglib::tool
