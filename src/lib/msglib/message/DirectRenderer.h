#pragma once

#include "message/ArgumentCursor.h"

#include <boost/any.hpp>

#include <cstddef>
#include <list>
#include <string_view>

namespace zem::msglib {

class TextOutput;

/// Renders a pattern as it is read, without a compiled form. It borrows the arguments and the
/// output that it appends to.
///
/// What is out of the ordinary it leaves to `MessageRenderer`: an index that is more than digits,
/// deep nesting, and all that fails, since the first failure of a pattern counts only if all of it
/// compiles.
class DirectRenderer {
public:
    DirectRenderer(const std::list<boost::any>& args, TextOutput& out) noexcept
        : arguments_(args),
          out_(out) {}

    /// Appends the message of `pattern`.
    ///
    /// @return false, with nothing appended, for a pattern or an argument to leave to
    ///         `MessageRenderer`
    bool render(std::string_view pattern);

private:
    bool renderMessage(std::string_view pattern);
    std::size_t renderPlaceholder(std::string_view pattern, std::size_t position);
    std::size_t renderTyped(std::string_view pattern, std::size_t position,
                            const boost::any& argument);
    std::size_t renderScanned(std::string_view pattern, std::size_t position,
                              const boost::any& argument);
    bool renderStyled(std::string_view type, std::string_view style, const boost::any& argument);
    bool renderChoice(std::string_view style, const boost::any& argument);

    ArgumentCursor arguments_;
    TextOutput& out_;
    int depth_ = 0; // of the choice that is being rendered
};

} // namespace zem::msglib
