#pragma once

#include "tool/changes/Changes.h"

#include <string>
#include <vector>

namespace zem::msglib::tool {

/// Returns changes as text for people, with the number of changes that break callers at the end:
///
///     arguments  0x40010002  MSG_COPIED  breaks callers: argument 1 (folder) is gone
///     text       0x40010002  MSG_COPIED
///       - {0} files copied to {1}.
///       + {0} files copied.
///
///     2 changes, 1 breaks callers
///
/// The language is shown before each text, except before a single text in English (United States).
/// Control characters are shown as U+FFFD.
///
/// @param isColoured  whether to add the escape sequences of terminals
std::string textOf(const std::vector<Change>& changes, bool isColoured);

/// Returns changes as a JSON array of objects. Members that do not apply are left out:
///
///     [{"change": "arguments", "breaks": true, "id": "0x40010002", "newId": "0x40010002",
///       "symbol": "MSG_COPIED", "message": "argument 1 (folder) is gone",
///       "arguments": ["number", "text"], "newArguments": ["number"]},
///      {"change": "text", ..., "texts": [{"language": 1033, "old": "...", "new": "..."}]}]
std::string jsonOf(const std::vector<Change>& changes);

} // namespace zem::msglib::tool
