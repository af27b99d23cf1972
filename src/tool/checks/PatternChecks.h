#pragma once

#include "tool/diagnostics/Diagnostics.h"
#include "tool/pattern/PatternTree.h"

namespace zem::msglib::tool {

// Each of these checks one subject in a pattern and in the texts of all its choices.

/// Reports everything that does not compile.
void checkSyntax(const PatternTree& tree, Diagnostics& diagnostics);

/// Reports placeholders whose index, type or style keyword has another meaning than it seems to
/// have.
void checkPlaceholders(const PatternTree& tree, Diagnostics& diagnostics);

/// Reports limits and texts of choices that are surely not meant.
void checkChoices(const PatternTree& tree, Diagnostics& diagnostics);

/// Reports apostrophes in choices that make other characters disappear.
void checkDroppedCharacters(const PatternTree& tree, Diagnostics& diagnostics);

/// Reports decimal patterns that compile but show something else than they seem to.
void checkDecimalStyles(const PatternTree& tree, Diagnostics& diagnostics);

/// Reports date patterns that show something else than they seem to.
void checkDateStyles(const PatternTree& tree, Diagnostics& diagnostics);

/// Reports static text that shows something else than it seems to.
void checkStaticText(const PatternTree& tree, Diagnostics& diagnostics);

/// Reports arguments that are not used although a higher one is.
void checkArguments(const PatternTree& tree, Diagnostics& diagnostics);

/// Runs all of these checks.
void checkPattern(const PatternTree& tree, Diagnostics& diagnostics);

} // namespace zem::msglib::tool
