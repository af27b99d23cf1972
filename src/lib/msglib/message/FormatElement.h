#pragma once

#include "msglib/Format.h"

#include <locale>
#include <memory>
#include <string>

namespace zem::msglib {

/// One placeholder of a compiled message and the static text after it.
struct FormatElement {
    int argumentIndex_ = 0;          ///< counts the arguments from 0
    std::shared_ptr<Format> format_; ///< empty if the argument's kind decides
    std::string type_;               ///< as written; kept for `setLocale`
    std::string style_;              ///< as written, except for doubled apostrophes
    std::string suffix_;             ///< quoting resolved

    /// Creates the formatter for type and style. An unknown type leaves `format_` unchanged.
    ///
    /// A failure leaves `format_` unchanged too, except for a decimal pattern: the formatter then
    /// holds the parts of the pattern before the failing one.
    ///
    /// @throws std::runtime_error "style_ required for choice format", or what the style's own
    ///         compiler throws
    void buildFormat(const std::locale& locale);
};

} // namespace zem::msglib
