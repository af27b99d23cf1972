#pragma once

#include "message/PlaceholderStyle.h"
#include "message/StaticText.h"

#include <boost/container/small_vector.hpp>

#include <cstddef>
#include <string_view>

namespace zem::msglib {

/// A piece of a plain pattern: static text, or a placeholder if it has an index.
struct PlainPiece {
    static constexpr int noIndex = -1;

    std::string_view text; ///< lies in the pattern
    int index = noIndex;
    PlaceholderStyle style = PlaceholderStyle::ByKind;
};

/// Reads the placeholder at `position` of a pattern, if nothing in it has to be compiled: its index
/// is plain digits and its style a keyword.
///
/// @return the position behind it; `std::string_view::npos` for any other placeholder, and for none
std::size_t readPlainPlaceholder(std::string_view pattern, std::size_t position,
                                 PlainPiece& placeholder) noexcept;

/// A pattern that can be rendered as it is read, since no placeholder needs a compiled form.
///
/// The pattern's text is borrowed.
class PlainPattern {
public:
    /// Reads a pattern whole.
    explicit PlainPattern(std::string_view pattern);

    /// Tells whether the pattern compiles and has nothing in it that needs to.
    bool isPlain() const noexcept { return isPlain_; }

    /// Calls `visitor` with each piece of a plain pattern.
    template <class Visitor>
    void forEach(Visitor&& visitor) const {
        for (const PlainPiece& piece : pieces_) {
            visitor(piece);
        }
        std::size_t position = rest_;
        while (position < pattern_.size()) {
            position = readPieces(position, visitor);
        }
    }

private:
    // Reads static text and the placeholder behind it.
    template <class Visitor>
    std::size_t readPieces(std::size_t position, Visitor&& visitor) const {
        const auto visitText = [&visitor](std::string_view text) { visitor(PlainPiece{text}); };
        position = scanStatic(pattern_, position, visitText);
        PlainPiece placeholder;
        if (position < pattern_.size()) {
            position = readPlainPlaceholder(pattern_, position, placeholder);
        }
        if (placeholder.index != PlainPiece::noIndex) {
            visitor(placeholder);
        }
        return position;
    }

    // The pieces of usual patterns are kept; reading those of long ones again costs less than
    // memory for them.
    static constexpr std::size_t usualPieces = 24;

    std::string_view pattern_;
    boost::container::small_vector<PlainPiece, usualPieces> pieces_;
    std::size_t rest_ = 0; ///< where the pieces begin that are not kept
    bool isPlain_;
};

} // namespace zem::msglib
