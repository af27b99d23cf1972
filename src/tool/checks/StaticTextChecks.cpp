#include "tool/checks/PatternChecks.h"
#include "tool/text/DisplayText.h"
#include "tool/text/Strings.h"

#include <string>
#include <utility>

// Reports static text that shows something else than it seems to.

namespace zem::msglib::tool {

namespace {

bool isLetterOrDigit(std::string_view text, std::size_t position) noexcept {
    return position < text.size() && (isLetter(text[position]) || isDigit(text[position]));
}

/// Returns the length of an insert of another message function that begins at a percent sign; 0 if
/// there is none. Inserts are `%1`, `%1!s!`, `%n`, `%0` at the end, and `%s`, `%d` and similar
/// conversions of C. A percentage such as `5%` and an escape in a web address such as `%20` are not
/// inserts.
std::size_t insertLength(std::string_view text, std::size_t percent) {
    constexpr std::string_view controls = "nrtb";
    constexpr std::string_view conversions[] = {"s", "d", "u", "i", "x", "ld", "lu", "ls", "lld"};
    if (percent > 0 && (isLetterOrDigit(text, percent - 1) || text[percent - 1] == '%')) {
        return 0;
    }
    const std::string_view rest = text.substr(percent + 1);
    if (rest.empty()) {
        return 0;
    }
    if (rest[0] == '0') {
        return trimmed(rest.substr(1)).empty() ? 2 : 0;
    }
    if (rest[0] >= '1' && rest[0] <= '9') {
        return isLetterOrDigit(rest, 1) ? 0 : 2;
    }
    if (controls.find(rest[0]) != std::string_view::npos && !isLetterOrDigit(rest, 1)) {
        return 2;
    }
    for (const std::string_view conversion : conversions) {
        if (rest.substr(0, conversion.size()) == conversion &&
            !isLetterOrDigit(rest, conversion.size())) {
            return conversion.size() + 1;
        }
    }
    return 0;
}

std::vector<Note> notesForInsert(std::string_view insert) {
    if (insert == "%0") {
        return {{"for no line end after the text, write `; // msglib: no-line-end` before the "
                 "message"}};
    }
    if (isDigit(insert[1])) {
        return {{"arguments are counted from 0: write `{" +
                 std::string(1, static_cast<char>(insert[1] - 1)) + "}`"}};
    }
    if (insert == "%n") {
        return {{"begin a new line"}};
    }
    return {{"write an argument as `{0}`"}};
}

void checkInserts(const PatternText& text, std::string_view piece, Diagnostics& diagnostics) {
    for (std::size_t at = piece.find('%'); at != std::string_view::npos;
         at = piece.find('%', at + 1)) {
        if (const std::size_t length = insertLength(piece, at); length > 0) {
            const std::string_view insert = piece.substr(at, length);
            diagnostics.report(rules::foreignInsert, text.text.placeOf(insert),
                               code(insert) + " is shown unchanged", notesForInsert(insert));
        }
    }
}

/// Reports apostrophes around a letter, a digit or a blank. They disappear although the character
/// needs no quoting.
void checkQuoted(const PatternText& text, const StaticPiece& piece, Diagnostics& diagnostics) {
    if (!piece.isQuoted || !(isLetterOrDigit(piece.text, 0) || piece.text == " ")) {
        return;
    }
    const auto at = static_cast<std::size_t>(piece.text.data() - text.text.text().data());
    diagnostics.report(rules::quoteVanishes, text.text.place(at - 1, at + 2),
                       "apostrophes around one character quote it and are not shown",
                       {{"write ’ (U+2019) for an apostrophe that is shown"}});
}

} // namespace

void checkStaticText(const PatternTree& tree, Diagnostics& diagnostics) {
    for (const PatternText& text : tree.texts()) {
        for (const StaticPiece& piece : text.pieces) {
            checkInserts(text, piece.text, diagnostics);
            checkQuoted(text, piece, diagnostics);
        }
    }
}

} // namespace zem::msglib::tool
