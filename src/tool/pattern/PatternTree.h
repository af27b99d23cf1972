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

/// What a placeholder's type and style ask for.
enum class PlaceholderKind : std::uint8_t {
    Plain,        ///< no type: the argument's kind decides
    Unknown,      ///< a type that is none, or a style without a type: as without a type
    Number,       ///< `number` with a word for a style, or none
    DecimalStyle, ///< `number` with a decimal pattern
    Date,         ///< `date` or `time` with a word for a style, or none
    DateStyle,    ///< `date` or `time` with a date pattern
    Choice,
};

/// A character that an apostrophe in a choice makes disappear.
struct DroppedCharacter {
    Place quote;    ///< from the apostrophe to the character
    bool isSplit;   ///< whether only a part of the character disappears, as of those beyond ASCII
    char taken;     ///< the byte between the two, which stays
    char dropped;   ///< the byte that disappears
    std::size_t at; ///< the offset of the byte that stays
};

/// A part of static text, as the library hands it out.
struct StaticPiece {
    std::string_view text;
    bool isQuoted; ///< whether it is one byte between apostrophes, which are not part of it
};

/// One choice of a choice pattern.
struct ChoiceEntry {
    TracedText limitText; ///< as written, up to the separator
    double limit;         ///< the least value, as the library reads it
    char separator;
    Place brace;      ///< an unmatched one that ends the text; without a file if there is none
    std::size_t text; ///< the number of the chosen text, a message of its own
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

/// Why something doesn't compile.
struct SyntaxError {
    enum class Kind : std::uint8_t {
        StrayBrace,   ///< a closing brace in static text
        NoIndex,      ///< a placeholder without a number
        OpenBrace,    ///< a placeholder that doesn't end
        ChoiceStyle,  ///< what is wrong with a choice pattern, or that there is none
        DecimalStyle, ///< what is wrong with a decimal pattern
    };
    Kind kind;
    std::string words; ///< the library's
    Place place;       ///< where reading stopped
    Place opening;     ///< the brace of the placeholder; without a file for `StrayBrace`

    /// The decimal pattern that it is in, and the position in it where reading stopped, if known.
    std::optional<TracedText> style = std::nullopt;
    std::size_t position = std::string_view::npos;
};

/// One message: that of the pattern, or the text of a choice.
struct PatternText {
    TracedText text;
    std::size_t depth;                        ///< in how many choices it is
    std::size_t parent;                       ///< the number of the text that has the choice
    std::size_t placeholder;                  ///< the number of the choice in that text
    std::shared_ptr<const BraceIndex> braces; ///< of texts without apostrophes deep inside
    std::vector<StaticPiece> pieces;
    std::vector<Placeholder> placeholders; ///< those that are whole
    std::vector<SyntaxError> errors;
    std::vector<DroppedCharacter> dropped; ///< in choice patterns of this text
};

/// A message pattern with the texts of all its choices, read by the library's own readers.
///
/// Any bytes are a pattern. Nesting takes no machine stack, and the time is linear in the length of
/// the pattern, but for the logarithm of the number of its apostrophes: from the depth on that none
/// are left, an index of the braces lets the readers jump over what is nested.
class PatternTree {
public:
    explicit PatternTree(const Place& pattern);

    /// Returns all texts, that of the pattern first, then the others level by level.
    const std::deque<PatternText>& texts() const noexcept { return texts_; }

private:
    std::deque<PatternText> texts_;
};

} // namespace zem::msglib::tool
