#include "tool/pattern/Quoter.h"

#include "tool/text/Unicode.h"

#include <algorithm>

// A text goes in, a spelling comes out. Spellings grow from left to right, one character at a time.
// Two spellings are equivalent if they show the same text and the same characters can follow. The
// library decides that too, by what it shows if different numbers of apostrophes follow. Only the
// shortest of equivalent spellings is kept. If the shortest one of all can be followed by
// everything, like an empty one, it is settled, and the search starts again after it. So the time
// is linear, and each trial is short.

namespace zem::msglib::tool {

namespace {

constexpr std::size_t mostApostrophes = 64;
constexpr std::size_t alwaysTried = 6;     // apostrophes, also if they were not learned
constexpr std::size_t solutions = 3;       // learned of each kind
constexpr std::size_t longestSearch = 512; // bytes of a text that are not settled
constexpr std::size_t longestThorough = 40;
constexpr std::size_t mostSpellings = 16; // kept at a time

constexpr std::string_view plain = "abc"; // means nothing at any place

std::string apostrophes(std::size_t count) {
    return std::string(count, '\'');
}

std::string between(std::string_view text, std::size_t count) {
    return apostrophes(count) + std::string(text) + apostrophes(count);
}

} // namespace

/// A spelling, and the text that it shows.
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

/// Learns which numbers of apostrophes between two texts show one apostrophe.
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

/// Learns which numbers of apostrophes around each of two characters show the characters. Returns
/// the least such number; 0 if there is none, or if no apostrophes are needed.
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

/// Returns a spelling with an end, and with its missing braces before and after it.
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

/// Returns the text that a framed spelling has to show.
std::string Quoter::framedText(const Spelling& spelling, std::string_view end) {
    return repeated("{" + std::string(plain), spelling.before.size()) + spelling.text +
           std::string(end) + textAfter(spelling);
}

std::string Quoter::textAfter(const Spelling& spelling) {
    return repeated("}" + std::string(plain), spelling.after.size());
}

/// Returns what the library shows after the text if different numbers of apostrophes follow the
/// spelling. Equivalent spellings have the same signature.
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

/// Returns whether the same characters can follow a spelling as can follow an empty one.
bool Quoter::isSettled(const Spelling& spelling, const std::string& signature) const {
    return signature == signatureOf({{}, {}, spelling.before, spelling.after});
}

/// Adds a spelling if it shows its text with plain characters after it.
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

/// Records the brace that has to match one more brace, with the same spelling.
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

/// Adds the spellings with one more character between apostrophes.
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

/// Adds the spellings with one more character: as it is; if that fails, between apostrophes; if
/// that fails too, with a matching brace.
void Quoter::extend(const Spelling& spelling, std::string_view character, bool isThorough,
                    Spellings& longer) const {
    Spelling asItIs = spelling;
    asItIs.spelling += character;
    asItIs.text += character;
    const bool isApostrophe = character == "'";
    const bool isDate = trial_.place() == TextPlace::date; // letters are fields there
    if (!isThorough && !isDate && !isApostrophe && tryOne(std::move(asItIs), longer)) {
        return; // needless quotes seldom help the characters beside it
    }
    const bool isBrace = character == "{" || character == "}";
    if ((!addAll(spelling, character, false, longer) || isThorough) && isBrace) {
        addAll(spelling, character, true, longer);
    }
}

/// Returns the spellings with one more character, the shortest first. If that one is settled, it is
/// moved to `settled`, and an empty spelling is returned.
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
        for (const std::size_t count : counts_) { // they may end quoted text
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
