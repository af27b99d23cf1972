#pragma once

#include "tool/diagnostics/Rule.h"

#include <string>

namespace zem::msglib::tool {

/// Returns one line for each rule: its name, severity and summary.
std::string ruleList();

/// Returns the explanation of a rule, with its examples, for a terminal.
std::string explanationOf(const Rule& rule);

/// Returns the page of the documentation about all rules, in Markdown.
std::string rulePage();

} // namespace zem::msglib::tool
