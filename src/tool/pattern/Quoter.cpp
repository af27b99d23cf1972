// Spellings grow from left to right. Of those that show the same and to which the same can be added, the shortest is
// kept, which the library tells too: by what it shows once different numbers of apostrophes follow. Where the shortest of
// all is one to which everything can be added, as to an empty one, the search begins anew after it. So it takes linear
// time, and each trial is short.

#include "tool/pattern/Quoter.h"

#include "tool/text/Unicode.h"

#include <algorithm>

namespace zem::msglib::tool {

namespace {

constexpr std::size_t mostApostrophes = 64;
constexpr std::size_t alwaysTried = 6;     // apostrophes, whatever has been learned
constexpr std::size_t solutions = 3;       // that are learned of each kind
constexpr std::size_t longestSearch = 512; // bytes of a text between two places to begin anew
constexpr std::size_t longestThorough = 40;
constexpr std::size_t mostSpellings = 16; // that are kept at a time

constexpr std::string_view plain = "abc"; // means nothing at any place

std::string apostrophes(std::size_t count) {
    return std::string(count, '\'');
}

std::string between(std::string_view text, std::size_t count) {
    return apostrophes(count) + std::string(text) + apostrophes(count);
}

} // namespace

/// A spelling of the characters so far, and what they are.
struct Quoter::Spelling {
    std::string spelling;
    std::string text;
    Partners before; ///< braces that have to open before it
    Partners after;  ///< braces that have to close after it, the innermost last
};

Quoter::Quoter(TextPlace place, std::size_t depth) : trial_(place, depth) {
    for (std::size_t count = 0; count <= alwaysTried; ++count) {
        counts_.push_back(count);
    }
    aroundText_ = learnPair("d", "M");
    for (const char* const special : {"|", "#", "E"}) {
        learnPair(special, special);
    }
    learnPair("{", "}");
    learnApostrophe("a", "bc", "a", "bc");
    if (aroundText_ > 0) {
        const std::string quotes = apostrophes(aroundText_);
        learnApostrophe(quotes + "d", "d" + quotes, "d", "d");
        learnApostrophe(quotes + "ad", "d" + quotes, "ad", "d");
    }
    std::sort(counts_.begin(), counts_.end());
    counts_.erase(std::unique(counts_.begin(), counts_.end()), counts_.end());
}

/// Learns how many apostrophes show one between two texts.
void Quoter::learnApostrophe(std::string_view before, std::string_view after,
                             std::string_view shownBefore, std::string_view shownAfter) {
    std::size_t found = 0;
    for (std::size_t count = 1; count <= mostApostrophes && found < solutions; ++count) {
        const std::string spelling =
            std::string(before) + apostrophes(count) + std::string(after) + std::string(plain);
        const std::string text =
            std::string(shownBefore) + "'" + std::string(shownAfter) + std::string(plain);
        if (trial_.showsAtEnd(spelling, text)) {
            counts_.push_back(count);
            ++found;
        }
    }
}

/// Learns how many apostrophes around each of two characters show them, and returns the least such
/// number; 0 if there is none, or if they need none.
std::size_t Quoter::learnPair(std::string_view one, std::string_view other) {
    std::size_t least = 0;
    std::size_t found = 0;
    for (std::size_t count = 0; count <= mostApostrophes && found < solutions; ++count) {
        const std::string spelling = "a" + between(one, count) + std::string(plain) +
                                     between(other, count) + std::string(plain);
        const std::string text =
            "a" + std::string(one) + std::string(plain) + std::string(other) + std::string(plain);
        if (trial_.showsAtEnd(spelling, text)) {
            if (count == 0) {
                return 0;
            }
            least = found++ == 0 ? count : least;
            counts_.push_back(count);
        }
    }
    return least;
}

/// Returns a spelling with an end, and with the braces that it lacks before and after it.
std::string Quoter::framed(const Spelling& spelling, std::string_view end) {
    std::string result;
    for (const std::string& brace : spelling.before) {
        result += brace + std::string(plain);
    }
    result += spelling.spelling + std::string(end);
    for (auto brace = spelling.after.rbegin(); brace != spelling.after.rend(); ++brace) {
        result += *brace + std::string(plain);
    }
    return result;
}

/// Returns what is to be shown for a spelling that is framed.
std::string Quoter::framedText(const Spelling& spelling, std::string_view end) {
    return repeated("{" + std::string(plain), spelling.before.size()) + spelling.text +
           std::string(end) + textAfter(spelling);
}

std::string Quoter::textAfter(const Spelling& spelling) {
    return repeated("}" + std::string(plain), spelling.after.size());
}

/// Returns what is shown if apostrophes follow, apart from the text so far.
std::string Quoter::signatureOf(const Spelling& spelling) const {
    const std::string expected = framedText(spelling, "");
    const auto end = expected.end() - static_cast<std::ptrdiff_t>(textAfter(spelling).size());
    std::string signature;
    for (const std::size_t count : counts_) {
        const std::string shown =
            trial_.shownAtEnd(framed(spelling, apostrophes(count) + std::string(plain)));
        const auto differs = std::mismatch(expected.begin(), end, shown.begin(), shown.end());
        signature += std::to_string(end - differs.first) + ':' +
                     std::string(differs.second, shown.end()) + '\n';
    }
    return signature;
}

/// Tells whether everything can follow a spelling that can follow an empty one.
bool Quoter::isSettled(const Spelling& spelling, const std::string& signature) const {
    return signature == signatureOf({{}, {}, spelling.before, spelling.after});
}

/// Adds a spelling if its text is shown where plain characters follow.
bool Quoter::tryOne(Spelling longer, Spellings& found) const {
    if (!trial_.showsAtEnd(framed(longer, plain), framedText(longer, plain))) {
        return false;
    }
    const auto [place, isNew] = found.try_emplace(signatureOf(longer), longer);
    if (!isNew && longer.spelling.size() < place->second.spelling.size()) {
        place->second = std::move(longer);
    }
    return true;
}

/// Notes which brace has to be there for one more, spelled alike.
void Quoter::addPartner(Spelling& spelling, char brace, std::size_t before, std::size_t after) {
    const auto among = [&](char other) { return apostrophes(before) + other + apostrophes(after); };
    if (brace == '{') {
        spelling.after.push_back(among('}'));
    } else if (spelling.after.empty()) {
        spelling.before.insert(spelling.before.begin(), among('{'));
    } else {
        spelling.after.pop_back();
    }
}

/// Adds the spellings with one more character, which is among apostrophes.
bool Quoter::addAll(const Spelling& spelling, std::string_view character, bool withPartner,
                    Spellings& found) const {
    const bool isApostrophe = character == "'";
    bool isShown = false;
    for (const std::size_t before : counts_) {
        for (const std::size_t after : counts_) {
            Spelling longer = spelling;
            longer.spelling += apostrophes(before) + (isApostrophe ? "" : std::string(character)) +
                               apostrophes(after);
            longer.text += character;
            if (withPartner) {
                addPartner(longer, character.front(), before, after);
            }
            isShown = tryOne(std::move(longer), found) || isShown;
            if (isApostrophe) {
                break;
            }
        }
    }
    return isShown;
}

/// Adds the spellings with one more character: as it is, or else among apostrophes, or else with a
/// brace that matches it.
void Quoter::extend(const Spelling& spelling, std::string_view character, bool isThorough,
                    Spellings& longer) const {
    Spelling asItIs = spelling;
    asItIs.spelling += character;
    asItIs.text += character;
    const bool isApostrophe = character == "'";
    const bool isDate = trial_.place() == TextPlace::date; // in which letters mean fields
    if (!isThorough && !isDate && !isApostrophe && tryOne(std::move(asItIs), longer)) {
        return; // quoting what needs none serves others beside it, but seldom
    }
    const bool isBrace = character == "{" || character == "}";
    if ((!addAll(spelling, character, false, longer) || isThorough) && isBrace) {
        addAll(spelling, character, true, longer);
    }
}

/// Makes spellings with one more character of those without it, the shortest first; of one to which
/// everything can be added, it makes a settled part and an empty spelling.
std::vector<Quoter::Spelling> Quoter::withCharacter(const std::vector<Spelling>& spellings,
                                                    std::string_view character, bool isThorough,
                                                    std::string& settled) const {
    Spellings found;
    for (const Spelling& spelling : spellings) {
        extend(spelling, character, isThorough, found);
    }
    const auto isShorter = [](const auto& one, const auto& other) {
        return one.second.spelling.size() < other.second.spelling.size();
    };
    const auto shortest = std::min_element(found.begin(), found.end(), isShorter);
    if (!isThorough && shortest != found.end() && isSettled(shortest->second, shortest->first)) {
        settled += shortest->second.spelling;
        return std::vector<Spelling>(1);
    }
    std::vector<Spelling> longer;
    for (auto& [signature, spelling] : found) {
        longer.push_back(std::move(spelling));
    }
    std::stable_sort(longer.begin(), longer.end(), [](const auto& one, const auto& other) {
        return one.spelling.size() < other.spelling.size();
    });
    longer.resize(std::min(longer.size(), isThorough ? 4 * mostSpellings : mostSpellings));
    return longer;
}

std::optional<std::string> Quoter::search(std::string_view text, bool isThorough) const {
    std::string settled;
    std::vector<Spelling> spellings(1);
    for (std::string_view rest = text; !rest.empty();) {
        const std::string_view before = rest;
        takeCharacter(rest);
        const std::string_view character = before.substr(0, before.size() - rest.size());
        spellings = withCharacter(spellings, character, isThorough, settled);
        if (spellings.empty() || spellings.front().text.size() > longestSearch) {
            return std::nullopt;
        }
    }
    std::vector<std::string> whole;
    for (const Spelling& spelling : spellings) {
        for (const std::size_t count : counts_) { // which may end what is quoted
            whole.push_back(settled + spelling.spelling + apostrophes(count));
        }
    }
    std::stable_sort(whole.begin(), whole.end(),
                     [](const auto& one, const auto& other) { return one.size() < other.size(); });
    const auto right = std::find_if(whole.begin(), whole.end(), [&](const std::string& spelling) {
        return trial_.showsEverywhere(spelling, text);
    });
    return right == whole.end() ? std::nullopt : std::optional(std::move(*right));
}

std::optional<std::string> Quoter::quote(std::string_view text) const {
    const std::string asItIs(text);
    const std::string asOne = between(text, aroundText_);
    for (const std::string& simple : {asItIs, asOne}) {
        if (trial_.showsEverywhere(simple, text)) {
            return simple;
        }
    }
    auto found = search(text, false);
    return found || text.size() > longestThorough ? found : search(text, true);
}

} // namespace zem::msglib::tool
