#pragma once

#include "msglib/Format.h"

#include <locale>
#include <memory>
#include <string>

namespace zem::msglib {

/// One placeholder of a compiled message and the static text behind it.
struct FormatElement {
    int argumentIndex_ = 0;          ///< counts the arguments from 0
    std::shared_ptr<Format> format_; ///< empty: the argument's kind decides
    std::string type_;               ///< as written; stays for later rebuilding
    std::string style_;              ///< as written, but for doubled quotes
    std::string suffix_;             ///< quoting resolved

    /// Makes the formatter that type and style ask for; an unknown type leaves `format_` as it is.
    ///
    /// `format_` is unchanged after a failure, except that of a decimal pattern: its formatter is
    /// kept as far as it was compiled.
    ///
    /// @throws std::runtime_error "style_ required for choice format", or what the style's own
    ///         compiler throws
    void buildFormat(const std::locale& locale);
};

} // namespace zem::msglib
