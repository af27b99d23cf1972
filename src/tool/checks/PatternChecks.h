#pragma once

#include "tool/diagnostics/Diagnostics.h"
#include "tool/pattern/PatternTree.h"

namespace zem::msglib::tool {

// Each of these checks one subject in a pattern and in the texts of all its choices.

/// Reports what doesn't compile.
void checkSyntax(const PatternTree& tree, Diagnostics& diagnostics);

/// Reports placeholders whose index, type or style word means something else than it seems to.
void checkPlaceholders(const PatternTree& tree, Diagnostics& diagnostics);

/// Reports limits and texts of choices that surely aren't meant.
void checkChoices(const PatternTree& tree, Diagnostics& diagnostics);

/// Reports apostrophes in choices that make other characters disappear.
void checkDroppedCharacters(const PatternTree& tree, Diagnostics& diagnostics);

/// Reports decimal patterns that compile but show something else than they seem to.
void checkDecimalStyles(const PatternTree& tree, Diagnostics& diagnostics);

/// Reports the same of date patterns.
void checkDateStyles(const PatternTree& tree, Diagnostics& diagnostics);

/// Reports the same of static text.
void checkStaticText(const PatternTree& tree, Diagnostics& diagnostics);

/// Reports arguments that nothing uses although a higher one is used.
void checkArguments(const PatternTree& tree, Diagnostics& diagnostics);

/// All of them.
void checkPattern(const PatternTree& tree, Diagnostics& diagnostics);

} // namespace zem::msglib::tool
