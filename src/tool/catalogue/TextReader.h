#pragma once

#include "tool/catalogue/Catalogue.h"
#include "tool/catalogue/HeadLexer.h"
#include "tool/diagnostics/Diagnostics.h"
#include "tool/text/Names.h"

namespace zem::msglib::tool {

/// Reads the lines of a text, up to its final "." or where that has been forgotten, which is
/// reported. The lexer stands at the first line, and then after the text.
///
/// @param languageName  for diagnostics
/// @param languages     whose names in a line `Language=name` show that a final "." is missing
/// @return all lines with their line ends
Place readText(HeadLexer& lexer, const Place& languageName, const DeclaredNames& languages,
               Diagnostics& diagnostics);

/// Obeys the directives in the comments of a message that ends at `end`, and reports what they and
/// its texts have wrong.
void finishMessage(Message& message, std::size_t end, Diagnostics& diagnostics);

/// Reports the directives among comments that no message follows.
void reportTrailingDirectives(const std::vector<Place>& comments, Diagnostics& diagnostics);

} // namespace zem::msglib::tool
