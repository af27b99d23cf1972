#pragma once

#include "message/ArgumentCursor.h"
#include "message/FormatElement.h"
#include "message/PlaceholderReader.h"

#include <boost/any.hpp>
#include <boost/container/small_vector.hpp>

#include <cstddef>
#include <list>
#include <memory>
#include <string>
#include <string_view>

namespace zem::msglib {

class TextOutput;

/// Renders one message. It borrows the arguments and the output that it appends to.
///
/// A pattern is rendered while it is read. To render the text that a choice selects, the renderer
/// pushes the reader of the outer message on a stack of frames, so nesting uses no machine stack.
///
/// The failure is the one that compiling each message before rendering it would report: on a
/// failure, the rest of each unfinished message is compiled, the outermost first. The first of them
/// that doesn't compile determines the failure, and all text of that message is removed from the
/// output.
///
/// The time is linear in the lengths of the pattern and the text, whatever the nesting: resolving
/// the quoting at least halves the apostrophes from level to level, and where none are left, an
/// index of the braces lets the readers skip nested text.
class MessageRenderer {
public:
    MessageRenderer(const std::list<boost::any>& args, TextOutput& out) noexcept
        : arguments_(args),
          out_(out) {}

    /// Appends the message of `pattern`. Throws what compiling and rendering it throw.
    void render(std::string_view pattern);

    /// Appends a placeholder of a compiled message and the text after it.
    void render(const FormatElement& element);

private:
    // A choice whose text is being rendered.
    struct Frame {
        ScannedText copy;                   // owns the text if quoting was resolved
        std::unique_ptr<BraceIndex> braces; // of the text, if it is deeply nested
        PlaceholderReader outside;          // of the outer message, after the choice
        std::size_t begin;                  // size of the output before the text
    };

    void renderPlaceholder(PlaceholderReader& reader);
    void renderScanned(PlaceholderReader& reader, const boost::any& argument);
    void renderStyled(PlaceholderReader& reader, std::string_view type, std::string_view style,
                      ScannedText&& copy, const boost::any& argument);
    void enterChoice(PlaceholderReader& reader, std::string_view style, ScannedText&& copy,
                     const boost::any& argument);
    bool leaveChoice(PlaceholderReader& reader);
    void compileRest(const PlaceholderReader& reader, std::size_t begin);
    void compile(std::string_view pattern, std::size_t begin);

    ArgumentCursor arguments_;
    TextOutput& out_;
    std::size_t placeholder_ = 0; // from here on, the current message may fail to compile
    boost::container::small_vector<Frame, 2> frames_;
};

/// Returns the text of `pattern` with `args`, as a new `MessageFormat` would render it.
std::string renderPattern(std::string_view pattern, const std::list<boost::any>& args);

} // namespace zem::msglib
