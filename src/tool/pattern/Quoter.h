#pragma once

#include "tool/pattern/TextTrial.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zem::msglib::tool {

/// Finds spellings with which texts appear unchanged at one place of a pattern, by asking the
/// library what different spellings show.
///
/// It does not know the rules of quoting. It puts apostrophes around and between the characters, in
/// numbers that showed single characters before.
class Quoter {
public:
    /// @param place  of the text
    /// @param depth  the number of choices around it
    Quoter(TextPlace place, std::size_t depth);

    /// Returns a short spelling that shows the text with any other text before and after it;
    /// nothing if none was found.
    ///
    /// Some spellings are not found: of unmatched braces inside a choice or a style, which need
    /// unreadable tricks, and of hundreds of apostrophes or braces without other text. The time is
    /// linear in the length of the text.
    ///
    /// @param text  valid UTF-8
    std::optional<std::string> quote(std::string_view text) const;

private:
    struct Spelling;
    using Partners = std::vector<std::string>;
    using Spellings = std::map<std::string, Spelling>; ///< the shortest of each signature

    void learnApostrophe(std::string_view before, std::string_view after,
                         std::string_view shownBefore, std::string_view shownAfter);
    std::size_t learnPair(std::string_view one, std::string_view other);
    std::optional<std::string> search(std::string_view text, bool isThorough) const;
    std::vector<Spelling> withCharacter(const std::vector<Spelling>& spellings,
                                        std::string_view character, bool isThorough,
                                        std::string& settled) const;
    void extend(const Spelling& spelling, std::string_view character, bool isThorough,
                Spellings& longer) const;
    bool tryOne(Spelling longer, Spellings& found) const;
    bool addAll(const Spelling& spelling, std::string_view character, bool withPartner,
                Spellings& found) const;
    static void addPartner(Spelling& spelling, char brace, std::size_t before, std::size_t after);
    static std::string framed(const Spelling& spelling, std::string_view end);
    static std::string framedText(const Spelling& spelling, std::string_view end);
    static std::string textAfter(const Spelling& spelling);
    std::string signatureOf(const Spelling& spelling) const;
    bool isSettled(const Spelling& spelling, const std::string& signature) const;

    TextTrial trial_;
    std::vector<std::size_t> counts_; ///< numbers of apostrophes to try, ascending
    std::size_t aroundText_ = 0;      ///< the number that quotes several characters
};

} // namespace zem::msglib::tool
