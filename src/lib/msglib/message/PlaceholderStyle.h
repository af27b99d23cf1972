#pragma once

#include <boost/any.hpp>

#include <locale>
#include <string_view>

namespace zem::msglib {

struct FormatElement;
class TextOutput;

/// What the type and style of a placeholder ask for: a formatter that is kept, or the text at once.
struct PlaceholderStyle {
    /// Gives `element` its formatter, as `FormatElement::buildFormat` says.
    using Build = void (*)(FormatElement& element, const std::locale& locale);

    /// Appends `argument` as that formatter writes it, and fails as making and using it do.
    using Append = void (*)(std::string_view style, const boost::any& argument, TextOutput& out);

    Build build;   ///< null for a type that makes no formatter: the argument's kind decides
    Append append; ///< null for a choice, whose text is a message of its own

    /// Returns the row for type and style as they stand, with case and blanks.
    static const PlaceholderStyle& of(std::string_view type, std::string_view style) noexcept;
};

/// Appends `argument` as a placeholder without a type writes it.
///
/// @throws as a formatter of the argument's kind does
void appendByKind(const boost::any& argument, TextOutput& out);

} // namespace zem::msglib
