#pragma once

#include "tool/changes/Changes.h"

#include <string>
#include <vector>

namespace zem::msglib::tool {

/// Returns changes for people, with the number of those that break callers at the end:
///
///     arguments  0x40010002  MSG_COPIED  breaks callers: argument 1 (folder) is gone
///     text       0x40010002  MSG_COPIED
///       - {0} files copied to {1}.
///       + {0} files copied.
///
///     2 changes, 1 breaks callers
///
/// Texts have their language before them, unless the only one is in English (United States). Control
/// characters are shown as U+FFFD.
///
/// @param isColoured  whether to add the escape sequences of terminals
std::string textOf(const std::vector<Change>& changes, bool isColoured);

/// Returns changes as a JSON array of objects, in which what does not apply is left out:
///
///     [{"change": "arguments", "breaks": true, "id": "0x40010002", "newId": "0x40010002",
///       "symbol": "MSG_COPIED", "message": "argument 1 (folder) is gone",
///       "arguments": ["number", "text"], "newArguments": ["number"]},
///      {"change": "text", ..., "texts": [{"language": 1033, "old": "...", "new": "..."}]}]
std::string jsonOf(const std::vector<Change>& changes);

} // namespace zem::msglib::tool
