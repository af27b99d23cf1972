#pragma once

#include "tool/text/SourceFile.h"

#include <vector>

namespace zem::msglib::tool {

/// A comment with an instruction for the tool:
///
///     ; // msglib: allow RULE...        silences rules in the message that follows
///     ; // msglib: no-line-end          leaves out the line end after its texts
///
/// The "//" may be left out.
struct CommentDirective {
    Place verb;                   ///< `allow` or `no-line-end`, or the word in its place
    std::vector<Place> arguments; ///< the words after it
};

/// Returns the words of a directive; its verb is empty if the comment is an ordinary one.
///
/// @param comment  from its ";" to the end of its line
CommentDirective readDirective(Place comment);

/// Returns whether a comment describes an argument: whether it begins with `@arg`.
bool isAnnotation(Place comment);

/// Returns a comment without its ";" and a "//" after it.
Place contentOf(Place comment);

/// Removes blanks and commas from the start, and then the word up to the next ones. Returns the
/// word; empty at the end.
Place takeWord(Place& rest);

} // namespace zem::msglib::tool
