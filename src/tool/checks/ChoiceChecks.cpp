#include "tool/checks/PatternChecks.h"
#include "tool/pattern/Spelling.h"
#include "tool/text/DisplayText.h"
#include "tool/text/Strings.h"

#include <algorithm>
#include <locale>
#include <sstream>
#include <string>
#include <utility>

// A pattern tree goes in, diagnostics come out: for limits and texts of choices that compile but
// are surely not meant. `checkChoices` looks at each entry of each choice by itself.
// `checkDroppedCharacters` looks at the characters that apostrophes make disappear; it first has to
// find the innermost text around each of them.

namespace zem::msglib::tool {

namespace {

/// Returns whether a limit is a number and nothing else.
bool isWhollyNumber(std::string_view limit) {
    const std::string_view number = trimmed(limit);
    if (!number.empty() && std::all_of(number.begin(), number.end(), isDigit)) {
        return true;
    }
    if (number.find_first_not_of("0123456789+-.eE") != std::string_view::npos) {
        return false;
    }
    std::istringstream stream{std::string(number)};
    stream.imbue(std::locale::classic());
    double value = 0.0;
    return stream >> value && stream.peek() == std::istringstream::traits_type::eof();
}

bool endsInExponent(std::string_view limit) {
    return limit.size() >= 2 && (limit.back() == 'e' || limit.back() == 'E') &&
           isDigit(limit[limit.size() - 2]);
}

std::vector<Note> notesForLimit(const ChoiceEntry& entry) {
    const std::string_view limit = entry.limitText.text();
    if (entry.separator == '+' && endsInExponent(limit)) {
        return {{"write the exponent without a sign, as in `1e3`"}};
    }
    if (limit.find('|') != std::string_view::npos) {
        return {{"`||` leaves no choice between the two; a choice is a number, `#` or `<`, and a "
                 "text"}};
    }
    if (limit.find("≤") != std::string_view::npos) {
        return {{"write `#` for \"≤\""}};
    }
    if (limit.find("∞") != std::string_view::npos || limit.find("inf") != std::string_view::npos) {
        return {{"there is no form for infinity; the first choice serves all lower numbers"}};
    }
    const std::size_t comma = limit.find(',');
    if (comma != std::string_view::npos && comma > 0 && isDigit(limit[comma - 1])) {
        return {{"the decimal separator is a point"}};
    }
    return {};
}

/// Returns the place of a limit, or of its separator if there is none.
Place placeOfLimit(const ChoiceEntry& entry) {
    Place place = entry.limitText.place();
    const std::size_t separator = place.offset + place.length;
    if (trimmed(entry.limitText.text()).empty()) {
        return {place.file, separator, 1};
    }
    return place;
}

void checkLimit(const ChoiceEntry& entry, Diagnostics& diagnostics) {
    std::ostringstream value;
    value.imbue(std::locale::classic());
    value << entry.limit;
    diagnostics.report(rules::choiceLimit, placeOfLimit(entry),
                       code(entry.limitText.text()) + " is not a number" +
                           (entry.limit == 0.0
                                ? " and counts as 0"
                                : ": what comes after " + value.str() + " is ignored"),
                       notesForLimit(entry));
}

void checkOrder(const ChoiceEntry& entry, const ChoiceEntry& former, Diagnostics& diagnostics) {
    const bool isEqual = entry.limit == former.limit;
    diagnostics.report(
        rules::choiceOrder, placeOfLimit(entry),
        isEqual ? "this limit repeats the one before it, whose text is never chosen"
                : "this limit is lower than the one before it: limits have to ascend",
        {{isEqual ? "the same limit" : "the limit before it", placeOfLimit(former)}});
}

void checkEntries(const Placeholder& placeholder, Diagnostics& diagnostics) {
    const ChoiceEntry* former = nullptr;
    bool isAfterBrace = false; // an apostrophe is then left before the limit
    for (const ChoiceEntry& entry : placeholder.entries) {
        if (entry.brace.file != nullptr) {
            diagnostics.report(rules::choiceClosing, entry.brace,
                               "this brace closes nothing, so it ends a choice as `|` does");
        }
        const bool isKnown = isWhollyNumber(entry.limitText.text());
        if (!isKnown && !isAfterBrace) {
            checkLimit(entry, diagnostics);
        }
        isAfterBrace = entry.brace.file != nullptr;
        if (!isKnown) {
            former = nullptr;
            continue;
        }
        if (former != nullptr && !(entry.limit > former->limit)) {
            checkOrder(entry, *former, diagnostics);
        }
        former = &entry;
    }
}

/// A text and its place, for finding the innermost text around an offset.
struct Extent {
    std::size_t begin;
    std::size_t end;
    const PatternText* text;
};

std::vector<Extent> extentsOf(const PatternTree& tree) {
    std::vector<Extent> extents;
    for (const PatternText& text : tree.texts()) {
        const Place place = text.text.place();
        extents.push_back({place.offset, place.end(), &text});
    }
    std::stable_sort(extents.begin(), extents.end(), [](const Extent& one, const Extent& other) {
        return one.begin != other.begin ? one.begin < other.begin : one.end > other.end;
    });
    return extents;
}

/// Returns the word around a position of a text.
std::string_view wordAround(std::string_view text, std::size_t position) {
    constexpr std::string_view ends = " \t\n{}|#<";
    constexpr std::size_t farthest = 40;
    std::size_t begin = position;
    while (begin > 0 && position - begin < farthest &&
           ends.find(text[begin - 1]) == std::string_view::npos) {
        --begin;
    }
    std::size_t end = position;
    while (end < text.size() && end - position < farthest &&
           ends.find(text[end]) == std::string_view::npos) {
        ++end;
    }
    while (begin > 0 && (static_cast<unsigned char>(text[begin]) & 0xC0) == 0x80) {
        --begin;
    }
    return text.substr(begin, end - begin);
}

std::string nameOf(char byte) {
    return byte == ' ' ? "the blank" : byte == '\n' ? "the line end" : shown({&byte, 1});
}

void report(const DroppedCharacter& dropped, const PatternText& text, Diagnostics& diagnostics) {
    const std::size_t count = apostrophesForOne(text.depth);
    const std::string more =
        count == 0 ? "" : ", or " + std::to_string(count) + " apostrophes at this depth";
    std::vector<Note> notes = {{"write ’ (U+2019)" + more}};
    if (dropped.isSplit) {
        diagnostics.report(rules::invalidEncoding, dropped.quote,
                           "in a choice, this apostrophe drops a part of the character after it: "
                           "what is shown is not UTF-8",
                           std::move(notes));
        return;
    }
    const std::string_view word = wordAround(text.text.text(), text.text.find(dropped.at));
    diagnostics.report(rules::choiceQuote, dropped.quote,
                       "in a choice, this apostrophe takes " + nameOf(dropped.taken) +
                           " and drops " + nameOf(dropped.dropped) + " after it: shows " +
                           shown(word),
                       std::move(notes));
}

} // namespace

void checkChoices(const PatternTree& tree, Diagnostics& diagnostics) {
    for (const PatternText& text : tree.texts()) {
        for (const Placeholder& placeholder : text.placeholders) {
            checkEntries(placeholder, diagnostics);
        }
    }
}

// An apostrophe is resolved by an outer choice, not by the text that contains it. One pass over all
// texts and all apostrophes, in the order of the file, finds the text of each.
void checkDroppedCharacters(const PatternTree& tree, Diagnostics& diagnostics) {
    std::vector<const DroppedCharacter*> all;
    for (const PatternText& text : tree.texts()) {
        for (const DroppedCharacter& dropped : text.dropped) {
            all.push_back(&dropped);
        }
    }
    if (all.empty()) {
        return;
    }
    std::sort(all.begin(), all.end(),
              [](const auto* one, const auto* other) { return one->at < other->at; });
    const std::vector<Extent> extents = extentsOf(tree);
    auto next = extents.begin();
    std::vector<Extent> around;
    for (const DroppedCharacter* dropped : all) {
        for (; next != extents.end() && next->begin <= dropped->at; ++next) {
            while (!around.empty() && around.back().end <= next->begin) {
                around.pop_back();
            }
            around.push_back(*next);
        }
        while (around.size() > 1 && around.back().end <= dropped->at) {
            around.pop_back();
        }
        report(*dropped, *around.back().text, diagnostics);
    }
}

} // namespace zem::msglib::tool
