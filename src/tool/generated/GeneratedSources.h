#pragma once

#include "tool/catalogue/Catalogue.h"

#include <cstdint>
#include <map>
#include <string>

namespace zem::msglib::tool {

/// The tables of a catalogue or module, by language.
using Tables = std::map<std::uint32_t, std::string>;

/// How the files of a catalogue are named after it.
struct CatalogueName {
    /// @param path  of the message text file
    explicit CatalogueName(const std::string& path);

    std::string file;         ///< the name of the message text file, without folders
    std::string stem;         ///< the same without its last ending: the name of header and source
    std::string registration; ///< the function's name: register and the stem in upper camel case
    std::string
        calls; ///< the namespace of typed calls: the stem in upper camel case, if no other is given
};

/// Returns the header of a catalogue: its identifiers as constants, and its registration function.
std::string headerText(const CatalogueName& name, const Catalogue& catalogue);

/// Returns the source file of a catalogue, which registers each of its facilities.
///
/// @param tables  to embed into an ELF module; none for a module that has them as a resource
std::string sourceText(const CatalogueName& name, const Catalogue& catalogue, const Tables& tables);

/// The file name of the resource script.
constexpr const char* resourceFileName = "messages.rc";

/// Returns the name of the file that holds a language's table for a resource script.
std::string tableFileName(std::uint32_t language);

/// Returns the resource script that gives a module its tables, from the files beside it.
std::string resourceText(const Tables& tables);

} // namespace zem::msglib::tool
