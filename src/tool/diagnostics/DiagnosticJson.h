#pragma once

#include "tool/diagnostics/Diagnostics.h"

#include <string>
#include <vector>

namespace zem::msglib::tool {

/// Returns diagnostics as a JSON array of objects:
///
///     {"file": "App.mc", "line": 31, "column": 34, "endLine": 31, "endColumn": 38,
///      "severity": "warning", "rule": "choice-quote", "message": "...",
///      "notes": [{"file": ..., "message": "..."}]}
///
/// Columns count characters. The end is the position after the last character.
std::string jsonOf(const std::vector<Diagnostic>& diagnostics);

/// Returns diagnostics as a log of the Static Analysis Results Interchange Format, 2.1.0.
std::string sarifOf(const std::vector<Diagnostic>& diagnostics);

} // namespace zem::msglib::tool
