#include "tool/checks/PatternChecks.h"
#include "tool/checks/StyleKeywords.h"
#include "tool/text/DisplayText.h"
#include "tool/text/Names.h"
#include "tool/text/Strings.h"

#include "msglib/DecimalFormat.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string>

// A pattern tree goes in, diagnostics come out: for decimal patterns that compile but show
// something else than they seem to. Each check looks for one sign of that, and renders an example
// with the library, so that the diagnostic shows what happens.

namespace zem::msglib::tool {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view digitMarks = "#0";
constexpr std::string_view numberMarks = "#0,.";
constexpr char currencySign = '\xA4';

/// Returns a number as a style shows it; nothing if the style does not compile.
std::optional<std::string> show(std::string_view style, double value) {
    try {
        std::string text;
        DecimalFormat(std::string(style), DecimalFormatSymbols()).format(value, text);
        return text;
    } catch (const std::runtime_error&) {
        return std::nullopt;
    }
}

/// Reports characters beyond ASCII that contain the byte of the currency sign, which breaks them.
void checkEncoding(const TracedText& style, Diagnostics& diagnostics) {
    const std::size_t sign = style.text().find(currencySign);
    if (sign == std::string_view::npos) {
        return;
    }
    const Place place = style.place(sign, sign + 1);
    const std::string character(place.text());
    diagnostics.report(
        rules::invalidEncoding, place,
        shown(character) + " has the byte A4, which is the currency sign in a "
                           "decimal pattern: what is shown is not UTF-8",
        {{character == "¤" ? "use the style `currency`" : "write the text after the placeholder"}});
}

void checkMarks(const TracedText& style, Diagnostics& diagnostics) {
    std::vector<Note> notes;
    const auto word = nearest(trimmed(style.text()), {"integer"sv, "currency"sv, "percent"sv});
    if (word) {
        notes.push_back({"did you mean " + code(*word) + "?"});
    }
    diagnostics.report(rules::noDigitMark, style.place(),
                       "a decimal pattern without `#` and `0`: shows 7 as " +
                           shown(show(style.text(), 7.0).value_or("")),
                       std::move(notes));
}

/// Reports the digits 1 to 9 beside marks, where they look like a part of the number.
void checkDigits(const TracedText& style, Diagnostics& diagnostics) {
    const std::string_view text = style.text();
    const auto isMark = [text](std::size_t position) {
        return position < text.size() && numberMarks.find(text[position]) != std::string_view::npos;
    };
    for (std::size_t begin = 0; begin < text.size(); ++begin) {
        std::size_t end = begin;
        while (end < text.size() && isDigit(text[end]) && text[end] != '0') {
            ++end;
        }
        if (end > begin && ((begin > 0 && isMark(begin - 1)) || isMark(end))) {
            diagnostics.report(rules::decimalDigit, style.place(begin, end),
                               "the digits 1 to 9 are text in a decimal pattern: shows 7 as " +
                                   shown(show(text, 7.0).value_or("")));
            return;
        }
        begin = std::max(begin, end);
    }
}

/// Reports apostrophes around several characters, which they do not quote.
void checkQuotes(const TracedText& style, Diagnostics& diagnostics) {
    const std::string text = show(style.text(), 7.0).value_or("");
    if (std::count(text.begin(), text.end(), '\'') >= 2 &&
        style.text().find("''") == std::string_view::npos) {
        diagnostics.report(rules::decimalQuote, style.place(),
                           "apostrophes around several characters quote nothing: shows 7 as " +
                               shown(text));
    }
}

/// Returns whether a choice by the same argument excludes zero for a placeholder.
bool excludesZero(const PatternTree& tree, const PatternText& text, int index) {
    constexpr int farthest = 64; // bounds the time; real patterns are not nested so deep
    const PatternText* inner = &text;
    for (int level = 0; level < farthest && inner->depth > 0; ++level) {
        const PatternText& outer = tree.texts()[inner->parent];
        const Placeholder& choice = outer.placeholders[inner->placeholder];
        const auto& entries = choice.entries;
        const auto entry = std::find_if(entries.begin(), entries.end(), [&](const auto& candidate) {
            return &tree.texts()[candidate.text] == inner;
        });
        if (choice.index == index && entry != entries.begin() && entry != entries.end() &&
            entry->limit > 0.0) {
            return true;
        }
        inner = &outer;
    }
    return false;
}

void checkZero(const PatternTree& tree, const PatternText& text, const Placeholder& placeholder,
               Diagnostics& diagnostics) {
    const auto zero = show(placeholder.style.text(), 0.0);
    if (!zero || std::any_of(zero->begin(), zero->end(), isDigit) ||
        excludesZero(tree, text, placeholder.index)) {
        return;
    }
    diagnostics.report(rules::zeroVanishes, placeholder.style.place(),
                       zero->empty() ? "this shows nothing for 0"
                                     : "this shows 0 as " + shown(*zero),
                       {{"`0` is a digit that is always shown, as in `#,##0`"}});
}

void checkStyle(const PatternTree& tree, const PatternText& text, const Placeholder& placeholder,
                Diagnostics& diagnostics) {
    const TracedText& style = placeholder.style;
    if (!show(style.text(), 1.0)) {
        return; // a syntax error, reported elsewhere
    }
    checkEncoding(style, diagnostics);
    checkQuotes(style, diagnostics);
    if (style.text().find_first_of(digitMarks) == std::string_view::npos) {
        checkMarks(style, diagnostics);
    } else {
        checkDigits(style, diagnostics);
        checkZero(tree, text, placeholder, diagnostics);
    }
}

} // namespace

void checkDecimalStyles(const PatternTree& tree, Diagnostics& diagnostics) {
    for (const PatternText& text : tree.texts()) {
        for (const Placeholder& placeholder : text.placeholders) {
            if (placeholder.kind == PlaceholderKind::DecimalStyle &&
                misreadStyleKeyword(placeholder).empty()) {
                checkStyle(tree, text, placeholder, diagnostics);
            }
        }
    }
}

} // namespace zem::msglib::tool
