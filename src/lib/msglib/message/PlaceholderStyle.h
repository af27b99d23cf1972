#pragma once

#include <boost/any.hpp>

#include <locale>
#include <string_view>

namespace zem::msglib {

struct FormatElement;
class TextOutput;

/// The two functions for the type and style of a placeholder: one builds its formatter, the other
/// renders directly.
struct PlaceholderStyle {
    /// Builds the formatter of `element`, as `FormatElement::buildFormat` describes.
    using Build = void (*)(FormatElement& element, const std::locale& locale);

    /// Appends `argument` as that formatter would, and throws what building and using it throw.
    using Append = void (*)(std::string_view style, const boost::any& argument, TextOutput& out);

    Build build;   ///< null without a formatter, where the argument's kind decides
    Append append; ///< null for a choice, whose text is a message itself

    /// Returns the functions for `type` and `style`, which are compared byte for byte.
    static const PlaceholderStyle& of(std::string_view type, std::string_view style) noexcept;
};

/// Appends `argument` as a placeholder without a type renders it.
///
/// @throws as a formatter of the argument's kind does
void appendByKind(const boost::any& argument, TextOutput& out);

} // namespace zem::msglib
