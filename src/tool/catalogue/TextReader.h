#pragma once

#include "tool/catalogue/Catalogue.h"
#include "tool/catalogue/HeadLexer.h"
#include "tool/diagnostics/Diagnostics.h"
#include "tool/text/Names.h"

namespace zem::msglib::tool {

/// Reads the lines of a text, up to its final ".". If that is missing, this is reported, and the
/// text ends before the next message or text. The lexer is at the first line before the call, and
/// after the text afterwards.
///
/// @param languageName  where diagnostics about the whole text point
/// @param languages     the declared names; a line `Language=name` with one of them shows that a
///                      final "." is missing
/// @return all lines with their line ends
Place readText(HeadLexer& lexer, const Place& languageName, const DeclaredNames& languages,
               Diagnostics& diagnostics);

/// Applies the directives in the comments of a message that ends at `end`, and reports errors in
/// them and in the lengths of its texts.
void finishMessage(Message& message, std::size_t end, Diagnostics& diagnostics);

/// Reports directives in comments that are not followed by a message.
void reportTrailingDirectives(const std::vector<Place>& comments, Diagnostics& diagnostics);

} // namespace zem::msglib::tool
