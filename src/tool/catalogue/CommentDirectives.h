#pragma once

#include "tool/text/SourceFile.h"

#include <vector>

namespace zem::msglib::tool {

/// A comment that asks the tool for something:
///
///     ; // msglib: allow RULE...        silences rules in the message that follows
///     ; // msglib: no-line-end          leaves out the line end after its texts
///
/// The "//" may be left out.
struct CommentDirective {
    Place verb;                   ///< `allow` or `no-line-end`, or what stands there instead
    std::vector<Place> arguments; ///< the words after it
};

/// Returns the words of a directive; its verb is empty if the comment is an ordinary one.
///
/// @param comment  from its ";" to the end of its line
CommentDirective readDirective(Place comment);

/// Tells whether a comment begins with `@arg`, as those about arguments do.
bool isAnnotation(Place comment);

/// Returns what a comment says: all but its ";", and a "//" after that.
Place contentOf(Place comment);

/// Takes blanks and commas, and then the word up to the next ones; empty at the end.
Place takeWord(Place& rest);

} // namespace zem::msglib::tool
