#pragma once

#include "tool/catalogue/Catalogue.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <string>
#include <vector>

namespace zem::msglib::tool {

/// The maximum number of entries in a block of a table that the library searches itself. The
/// library searches blocks by bisection and entries one by one, so short blocks make a lookup fast.
constexpr std::size_t shortBlock = 8;

/// No maximum, for tables that the operating system searches.
constexpr std::size_t longestBlock = std::numeric_limits<std::size_t>::max();

/// Compiles the messages of catalogues to tables in the documented binary form, which is
/// little-endian on every machine.
///
/// @param catalogues       without errors, so no identifier comes twice in a language
/// @param entriesPerBlock  at most; at least 1
/// @return the bytes of the table of each language
std::map<std::uint32_t, std::string> compileTables(const std::vector<const Catalogue*>& catalogues,
                                                   std::size_t entriesPerBlock);

} // namespace zem::msglib::tool
