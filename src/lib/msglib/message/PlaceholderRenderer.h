#pragma once

#include "message/PlaceholderStyle.h"

#include <boost/any.hpp>

#include <string_view>

namespace zem::msglib {

class TextOutput;

/// Appends arguments without formatters of their own, where they need none.
class PlaceholderRenderer {
public:
    /// Appends `argument` as a placeholder without a type writes it.
    ///
    /// @throws as a formatter of the argument's kind does
    static void appendByKind(const boost::any& argument, TextOutput& out);

    /// Appends `argument` as the formatter would that `FormatElement::buildFormat` makes for
    /// `placeholder`, any but a choice.
    ///
    /// @param style  the style as written
    /// @throws as `buildFormat` and the formatter do
    static void appendByStyle(PlaceholderStyle placeholder, std::string_view style,
                              const boost::any& argument, TextOutput& out);
};

} // namespace zem::msglib
