#pragma once

#include "tool/pattern/TextTrial.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zem::msglib::tool {

/// Finds how to write texts at one place of a pattern so that they appear as they are, by asking the
/// library what different spellings show.
///
/// It knows nothing of the rules of quoting: it puts apostrophes around and between the characters,
/// in such numbers as have shown single characters before.
class Quoter {
public:
    /// @param place  of the text
    /// @param depth  in how many choices it is
    Quoter(TextPlace place, std::size_t depth);

    /// Returns a short spelling that shows the text wherever it may stand at the place; nothing if
    /// none was found.
    ///
    /// There may be one all the same: where braces do not match inside a choice or a style, by tricks
    /// that nobody would read, and where apostrophes or braces go on for hundreds of bytes. It takes
    /// time in proportion to the length of the text.
    ///
    /// @param text  valid UTF-8
    std::optional<std::string> quote(std::string_view text) const;

private:
    struct Spelling;
    using Partners = std::vector<std::string>;
    using Spellings = std::map<std::string, Spelling>; ///< by what may follow, the shortest of each

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
    std::vector<std::size_t> counts_; ///< of apostrophes that have shown something, ascending
    std::size_t aroundText_ = 0;      ///< how many quote a text of several characters
};

} // namespace zem::msglib::tool
