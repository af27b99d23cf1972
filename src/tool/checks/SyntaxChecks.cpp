#include "tool/checks/PatternChecks.h"
#include "tool/pattern/Spelling.h"
#include "tool/text/DisplayText.h"
#include "tool/text/Strings.h"

#include "msglib/DecimalFormat.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>

// A pattern tree with syntax errors goes in, diagnostics come out. The message of each diagnostic
// is the library's own. The notes say what to write instead: for some errors, a corrected style is
// tried and suggested if it compiles.

namespace zem::msglib::tool {

namespace {

using Kind = SyntaxError::Kind;

std::string braceHint(char brace, std::size_t depth) {
    return depth == 0 ? std::string("to show the brace, write `'") + brace + "'`"
                      : "braces in a choice have to match; to show one alone, pass it as an "
                        "argument";
}

std::vector<Note> notesForIndex(const SyntaxError& error, std::size_t depth) {
    const std::string_view text = trimmed(error.place.text());
    if (!text.empty() && std::all_of(text.begin(), text.end(), isDigit)) {
        return {{"the number is too large"}};
    }
    if (text.empty() || isLetter(text.front())) {
        return {{"arguments have numbers, counted from 0: `{0}`"}, {braceHint('{', depth)}};
    }
    return {{braceHint('{', depth)}};
}

std::vector<Note> notesForChoice(const SyntaxError& error) {
    if (error.style->size() == 0) {
        return {{"write what to choose from, as in `{0,choice,0#none|1#one|1<many}`"}};
    }
    const std::string_view style = error.style->text();
    const std::size_t position = error.position;
    if (position > 0 && position <= style.size() && style[position - 1] == '}') {
        return {{"the brace before it closes nothing, so it ends the choice as `|` does"}};
    }
    if (trimmed(style.substr(std::min(position, style.size()))).empty()) {
        return {{"after the last `|`, another choice is expected"}};
    }
    return {{"a choice is a number, `#` or `<`, and a text, as in `0#none`"}};
}

bool compiles(const std::string& decimalPattern) {
    try {
        const DecimalFormat format(decimalPattern, DecimalFormatSymbols());
        return true;
    } catch (const std::runtime_error&) {
        return false;
    }
}

/// Returns a style in which every occurrence of a character is quoted; empty if the style still
/// does not compile.
std::string withTextOf(char character, std::string_view style, std::size_t depth) {
    const std::string quoted = quotedInStyle("number", std::string(1, character), depth);
    std::string tried;
    std::string suggested;
    for (const char byte : style) {
        const bool isText = byte == character;
        tried += isText ? std::string{'\'', byte, '\''} : std::string(1, byte);
        suggested += isText ? quoted : std::string(1, byte);
    }
    const bool isPlain = style.find('\'') == std::string_view::npos && !quoted.empty();
    return isPlain && tried != style && compiles(tried) ? suggested : std::string();
}

std::vector<Note> notesForDecimal(const SyntaxError& error, std::size_t depth) {
    const std::string_view style = error.style->text();
    if (const std::string better = withTextOf('E', style, depth); !better.empty()) {
        return {{"an `E` begins an exponent; for the letter write " + code(better)}};
    }
    if (style.find('%') != std::string_view::npos) {
        return {{"one `%` after the digits multiplies by 100, as in `0%`"}};
    }
    if (const std::string better = withTextOf('.', style, depth); !better.empty()) {
        return {{"a `.` separates the fraction; for the character write " + code(better)}};
    }
    return {};
}

std::vector<Note> notesFor(const SyntaxError& error, std::size_t depth) {
    switch (error.kind) {
    case Kind::StrayBrace: return {{braceHint('}', depth)}};
    case Kind::NoIndex: return notesForIndex(error, depth);
    case Kind::OpenBrace: return {{"this brace is not closed", error.opening}};
    case Kind::ChoiceStyle: return notesForChoice(error);
    case Kind::DecimalStyle: return notesForDecimal(error, depth);
    }
    return {};
}

/// Returns the place of an error. An error at the line end after a text is moved to the end of its
/// last line.
Place placeOf(const SyntaxError& error) {
    Place place = error.place;
    const std::string_view file = place.file->text();
    while (place.length == 0 && place.offset > 0 && file[place.offset - 1] == '\n') {
        --place.offset;
    }
    return place;
}

} // namespace

void checkSyntax(const PatternTree& tree, Diagnostics& diagnostics) {
    for (const PatternText& text : tree.texts()) {
        for (const SyntaxError& error : text.errors) {
            std::string message = error.message;
            while (!message.empty() && message.back() == '.') {
                message.pop_back();
            }
            diagnostics.report(rules::syntax, placeOf(error), std::move(message),
                               notesFor(error, text.depth));
        }
    }
}

} // namespace zem::msglib::tool
