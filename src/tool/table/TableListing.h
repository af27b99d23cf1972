#pragma once

#include "tool/table/ModuleTables.h"

#include <cstdint>
#include <string>
#include <vector>

namespace zem::msglib::tool {

/// Returns the name of the severity of an identifier, its two highest bits.
const char* severityOf(std::uint32_t id) noexcept;

/// Returns the messages of tables, each with its identifier, the parts of the identifier, and its
/// text:
///
///     Language 0x0409: 2 messages
///
///     0x40010002  informational  facility 1  code 2
///         {0} files copied.
///
/// Control characters in texts are shown as U+FFFD.
///
/// @param isColoured  whether to add the escape sequences of terminals
std::string textOf(const std::vector<LanguageTable>& tables, bool isColoured);

/// Returns the same as a JSON array, in which texts have the line ends of the table:
///
///     [{"language": 1033, "messages": [{"id": "0x40010002", "severity": "informational",
///       "facility": 1, "code": 2, "text": "{0} files copied.\r\n"}]}]
///
/// The language of a table in a file of its own is null.
std::string jsonOf(const std::vector<LanguageTable>& tables);

} // namespace zem::msglib::tool
