#pragma once

#include "tool/pattern/TracedText.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zem::msglib {
class BraceIndex;
}

namespace zem::msglib::tool {

/// The format of a placeholder, by its type and style.
enum class PlaceholderKind : std::uint8_t {
    Plain,        ///< no type: the kind of the argument decides
    Unknown,      ///< an unknown type, or a style without a type; both are ignored
    Number,       ///< `number` with a style keyword, or without a style
    DecimalStyle, ///< `number` with a decimal pattern
    Date,         ///< `date` or `time` with a style keyword, or without a style
    DateStyle,    ///< `date` or `time` with a date pattern
    Choice,
};

/// A character that an apostrophe in a choice makes disappear.
struct DroppedCharacter {
    Place quote;    ///< from the apostrophe to the character
    bool isSplit;   ///< whether only a part of a character beyond ASCII disappears
    char taken;     ///< the byte between the two, which stays
    char dropped;   ///< the byte that disappears
    std::size_t at; ///< the offset of the byte that stays
};

/// A part of static text, as the library's reader hands it out.
struct StaticPiece {
    std::string_view text;
    bool isQuoted; ///< whether it is one byte between apostrophes, which are left out
};

/// One entry of a choice pattern.
struct ChoiceEntry {
    TracedText limitText; ///< as written, up to the separator
    double limit;         ///< the least value, as the library reads it
    char separator;
    Place brace;      ///< an unmatched brace that ends the text; no file if there is none
    std::size_t text; ///< the index of the chosen text in the tree
};

struct Placeholder {
    Place whole;          ///< with its braces
    int index;            ///< of its argument
    TracedText indexText; ///< as written
    TracedText type;
    TracedText style;
    PlaceholderKind kind;
    std::vector<ChoiceEntry> entries; ///< of a choice, up to its first error
};

/// An error that keeps a text from compiling.
struct SyntaxError {
    enum class Kind : std::uint8_t {
        StrayBrace,   ///< a closing brace in static text
        NoIndex,      ///< a placeholder without a number
        OpenBrace,    ///< a placeholder without an end
        ChoiceStyle,  ///< an error in a choice pattern, or an empty one
        DecimalStyle, ///< an error in a decimal pattern
    };
    Kind kind;
    std::string message; ///< of the library
    Place place;         ///< where reading stopped
    Place opening;       ///< the brace of the placeholder; no file for `StrayBrace`

    /// The style with the error, and the position in it where reading stopped, if known.
    std::optional<TracedText> style = std::nullopt;
    std::size_t position = std::string_view::npos;
};

/// A text with placeholders: the whole pattern, or the text of a choice.
struct PatternText {
    TracedText text;
    std::size_t depth;                        ///< the number of choices around it
    std::size_t parent;                       ///< the index of the text with the choice
    std::size_t placeholder;                  ///< the index of the choice in that text
    std::shared_ptr<const BraceIndex> braces; ///< of a deep text without apostrophes
    std::vector<StaticPiece> pieces;
    std::vector<Placeholder> placeholders; ///< without those that have no end or no index
    std::vector<SyntaxError> errors;
    std::vector<DroppedCharacter> dropped; ///< in choice patterns of this text
};

/// A message pattern with the texts of all its choices, read by the library's own readers.
///
/// A pattern may be any bytes. Nesting takes no machine stack. The time is linear in the length of
/// the pattern times the logarithm of the number of its apostrophes. At depths without apostrophes,
/// an index of the braces lets the readers jump over nested text.
class PatternTree {
public:
    explicit PatternTree(const Place& pattern);

    /// Returns all texts: the whole pattern first, then the texts of choices, level by level.
    const std::deque<PatternText>& texts() const noexcept { return texts_; }

private:
    std::deque<PatternText> texts_;
};

} // namespace zem::msglib::tool
