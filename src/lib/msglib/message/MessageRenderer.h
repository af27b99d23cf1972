#pragma once

#include "message/FormatElement.h"
#include "message/PlainPattern.h"
#include "msglib/DateFormat.h"
#include "msglib/NumberFormat.h"

#include <boost/any.hpp>

#include <cstddef>
#include <list>
#include <locale>
#include <string>
#include <string_view>

namespace zem::msglib {

class MessageFormat;

/// One rendering of one message. It borrows the arguments, the locale and the string that it
/// appends to.
class MessageRenderer {
public:
    MessageRenderer(const std::list<boost::any>& args, const std::locale& locale, std::string& out)
        : args_(args),
          argument_(args.begin()),
          locale_(locale),
          out_(out) {}

    /// Appends `message` with the arguments; fails as `MessageFormat::format` does.
    void render(const MessageFormat& message);

    /// Appends the message of `pattern`, compiled for this rendering only.
    void render(std::string_view pattern);

private:
    void renderPlain(const PlainPattern& pattern);
    void renderPending();
    void renderElement(const FormatElement& element);
    void renderByStyle(PlaceholderStyle style, const boost::any& argument);
    void renderByKind(const boost::any& argument);
    void appendNumber(NumberFormat::FormatType type, const boost::any& argument);
    void appendDate(DateFormat::Style style, const boost::any& argument);
    void expandChoice(const FormatElement& element, const boost::any& argument);
    const boost::any& argumentAt(int index);

    const std::list<boost::any>& args_;
    std::list<boost::any>::const_iterator argument_;
    std::size_t position_ = 0; // of argument_ in args_
    const std::locale& locale_;
    std::string& out_;

    // What a choice has brought up and is still to be rendered, so that no nesting uses the machine
    // stack.
    std::list<FormatElement> pending_;
};

/// Returns the text of `pattern` with `args`, as a new `MessageFormat` would write it.
std::string renderPattern(std::string_view pattern, const std::list<boost::any>& args);

} // namespace zem::msglib
