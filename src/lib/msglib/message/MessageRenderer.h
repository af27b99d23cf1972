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

/// One rendering of one message. It borrows the arguments and the output that it appends to.
///
/// A pattern is rendered as it is read. The text that a choice picks is read in its turn, while
/// the reader of the message around it waits in a frame, so that no nesting uses the machine stack.
///
/// Failures come in the order in which compiling each message before rendering it would raise
/// them: on a failure, the messages that were begun are compiled from where they stand, the
/// outermost first. If one of them doesn't compile, that is the failure, and nothing of that
/// message stays in the output.
///
/// The time is linear in the length of the pattern and of the text, whatever the nesting: quoting
/// at least halves the apostrophes from level to level, and where none are left, an index of the
/// braces lets the readers jump over what is nested.
class MessageRenderer {
public:
    MessageRenderer(const std::list<boost::any>& args, TextOutput& out) noexcept
        : arguments_(args),
          out_(out) {}

    /// Appends the message of `pattern`; fails as compiling and rendering it do.
    void render(std::string_view pattern);

    /// Appends a placeholder of a compiled message and the text after it.
    void render(const FormatElement& element);

private:
    // A choice whose text is being rendered.
    struct Frame {
        ScannedText copy;                   // keeps the text, where quoting was resolved
        std::unique_ptr<BraceIndex> braces; // of the text, from some depth on
        PlaceholderReader outside;          // of the message that has the choice, after it
        std::size_t begin;                  // the size of the output before the text
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
    std::size_t placeholder_ = 0; // from here on, the message that is being read may not compile
    boost::container::small_vector<Frame, 2> frames_;
};

/// Returns the text of `pattern` with `args`, as a new `MessageFormat` would write it.
std::string renderPattern(std::string_view pattern, const std::list<boost::any>& args);

} // namespace zem::msglib
