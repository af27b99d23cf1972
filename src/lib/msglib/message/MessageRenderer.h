#pragma once

#include "message/ArgumentCursor.h"
#include "message/FormatElement.h"

#include <boost/any.hpp>

#include <list>
#include <locale>
#include <string>
#include <string_view>

namespace zem::msglib {

class TextOutput;

class MessageFormat;

/// One rendering of one message. It borrows the arguments, the locale and the output that it
/// appends to.
class MessageRenderer {
public:
    MessageRenderer(const std::list<boost::any>& args, const std::locale& locale, TextOutput& out)
        : arguments_(args),
          locale_(locale),
          out_(out) {}

    /// Appends `message` with the arguments; fails as `MessageFormat::format` does.
    void render(const MessageFormat& message);

private:
    void renderPending();
    void renderElement(const FormatElement& element);
    void expandChoice(const FormatElement& element, const boost::any& argument);

    ArgumentCursor arguments_;
    const std::locale& locale_;
    TextOutput& out_;

    // Until a choice turns out to need compiled forms; then those inside it are not tried first,
    // which would read deep nesting many times.
    bool rendersDirectly_ = true;

    // What a choice has brought up and is still to be rendered, so that no nesting uses the machine
    // stack.
    std::list<FormatElement> pending_;
};

/// Returns the text of `pattern` with `args`, as a new `MessageFormat` would write it.
std::string renderPattern(std::string_view pattern, const std::list<boost::any>& args);

} // namespace zem::msglib
