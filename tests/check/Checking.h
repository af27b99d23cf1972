#pragma once

#include "tool/Reading.h"
#include "tool/checks/PatternChecks.h"

#include <string>
#include <string_view>
#include <utility>

namespace zem::msglib::tool {

/// Returns what the check finds in a pattern, as `dump` writes it.
inline std::string diagnosed(std::string_view pattern, SeverityPolicy policy = {}) {
    const SourceFile file("pattern", std::string(pattern));
    Diagnostics diagnostics(std::move(policy));
    checkPattern(PatternTree({&file, 0, file.text().size()}), diagnostics);
    return dump(diagnostics.take());
}

/// Returns the names of the rules that a pattern violates, each followed by a blank.
inline std::string rulesOf(std::string_view pattern, SeverityPolicy policy = {}) {
    const SourceFile file("pattern", std::string(pattern));
    Diagnostics diagnostics(std::move(policy));
    checkPattern(PatternTree({&file, 0, file.text().size()}), diagnostics);
    std::string names;
    for (const Diagnostic& diagnostic : diagnostics.take()) {
        names += std::string(diagnostic.rule->name) + ' ';
    }
    return names;
}

} // namespace zem::msglib::tool
