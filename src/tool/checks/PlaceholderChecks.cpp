#include "tool/checks/PatternChecks.h"
#include "tool/checks/StyleKeywords.h"
#include "tool/text/DisplayText.h"
#include "tool/text/Names.h"
#include "tool/text/Strings.h"

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <utility>

// A pattern tree goes in, diagnostics come out: for placeholders whose index, type or style keyword
// has another meaning than it seems to have. `checkPlaceholders` visits every placeholder of every
// text and runs one small check for each part of it.

namespace zem::msglib::tool {

namespace {

using namespace std::string_view_literals;

constexpr std::array typeKeywords = {"number"sv, "date"sv, "time"sv, "choice"sv};

/// A word that people write as a type, in lower case, and the correct form.
struct Habit {
    std::string_view written;
    std::string_view meant; ///< empty: no type at all
};

constexpr Habit habits[] = {
    {"integer", "number,integer"},
    {"int", "number,integer"},
    {"currency", "number,currency"},
    {"percent", "number,percent"},
    {"decimal", "number"},
    {"double", "number"},
    {"float", "number"},
    {"num", "number"},
    {"short", "date,short"},
    {"medium", "date,medium"},
    {"long", "date,long"},
    {"full", "date,full"},
    {"datetime", "date"},
    {"plural", "choice"},
    {"selectordinal", "choice"},
    {"select", "choice"},
    {"string", ""},
    {"text", ""},
    {"str", ""},
};

/// Returns a note with the type that was probably meant by an unknown one.
Note noteForType(const Placeholder& placeholder) {
    const std::string word = lowerCase(trimmed(placeholder.type.text()));
    const auto* const habit =
        std::find_if(std::begin(habits), std::end(habits),
                     [&word](const Habit& candidate) { return candidate.written == word; });
    if (habit != std::end(habits)) {
        return habit->meant.empty() ? Note{"leave the type out"}
                                    : Note{"did you mean " + code(habit->meant) + "?"};
    }
    if (const auto type = nearest(word, {typeKeywords.begin(), typeKeywords.end()})) {
        return {"did you mean " + code(*type) + "?"};
    }
    return {"the types are `number`, `date`, `time` and `choice`"};
}

void checkIndex(const Placeholder& placeholder, const PatternText& text, Diagnostics& diagnostics) {
    const std::string_view index = placeholder.indexText.text();
    if (placeholder.index < 0) {
        diagnostics.report(rules::negativeIndex, text.text.placeOf(index),
                           "there is no argument " + std::to_string(placeholder.index) +
                               ", so this fails whatever the arguments are");
    }
    const std::string_view number = trimmed(index);
    std::size_t end = !number.empty() && (number[0] == '-' || number[0] == '+') ? 1 : 0;
    while (end < number.size() && isDigit(number[end])) {
        ++end;
    }
    const std::string_view ignored = number.substr(end);
    if (ignored.empty()) {
        return;
    }
    const bool isColon = ignored.front() == ':';
    diagnostics.report(rules::indexTrailing, text.text.placeOf(ignored),
                       code(ignored) + " after the index " + std::to_string(placeholder.index) +
                           " is ignored",
                       isColon ? std::vector<Note>{{"a type comes after a comma, as in "
                                                    "`{0,number,0.00}`"}}
                               : std::vector<Note>());
}

void checkType(const Placeholder& placeholder, Diagnostics& diagnostics) {
    if (placeholder.kind != PlaceholderKind::Unknown) {
        return;
    }
    const std::string plain = code('{' + std::to_string(placeholder.index) + '}');
    if (placeholder.type.size() == 0) {
        diagnostics.report(rules::unknownType, placeholder.whole,
                           "a style without a type is ignored: this shows what " + plain +
                               " shows");
    } else {
        diagnostics.report(rules::unknownType, placeholder.type.place(),
                           code(placeholder.type.text()) + " is not a type: this shows what " +
                               plain + " shows",
                           {noteForType(placeholder)});
    }
}

void checkStyleKeyword(const Placeholder& placeholder, Diagnostics& diagnostics) {
    const std::string word = misreadStyleKeyword(placeholder);
    if (word.empty()) {
        return;
    }
    const std::string_view type = placeholder.type.text();
    const std::string_view owner = typeOfStyleKeyword(word);
    Note note = owner == type    ? Note{"did you mean " + code(word) + "?"}
                : type == "time" ? Note{"leave the style out, or write a pattern such as `HH:mm`"}
                                 : Note{code(word) + " is a style of " + code(owner)};
    diagnostics.report(rules::timeStyle, placeholder.style.place(),
                       code(placeholder.style.text()) + " is not a style of " + code(type) +
                           " and is read as a pattern",
                       {std::move(note)});
}

/// Returns the indexes of the arguments that decide choices, and for each whether all limits of its
/// choices are whole numbers.
std::map<int, bool> wholeDrivers(const PatternTree& tree) {
    std::map<int, bool> drivers;
    for (const PatternText& text : tree.texts()) {
        for (const Placeholder& placeholder : text.placeholders) {
            for (const ChoiceEntry& entry : placeholder.entries) {
                const auto driver = drivers.emplace(placeholder.index, true).first;
                driver->second &= entry.limitText.text().find('.') == std::string_view::npos;
            }
        }
    }
    return drivers;
}

void checkDecimals(const Placeholder& placeholder, const std::map<int, bool>& drivers,
                   Diagnostics& diagnostics) {
    if (placeholder.kind != PlaceholderKind::Number || placeholder.style.size() > 0) {
        return;
    }
    const std::string index = std::to_string(placeholder.index);
    const auto driver = drivers.find(placeholder.index);
    const bool isCount = driver != drivers.end() && driver->second;
    diagnostics.report(
        rules::implicitDecimals, isCount ? Severity::warning : Severity::note, placeholder.whole,
        isCount ? "this counts something, but shows 1 as \"1.00\""
                : "this shows a whole number with two decimals, 1 as \"1.00\"",
        {{"for whole numbers write `{" + index + "}` or `{" + index + ",number,integer}`"}});
}

/// Reports a percent sign after a number that already has one.
void checkPercent(const Placeholder& placeholder, Diagnostics& diagnostics) {
    const std::string_view style = placeholder.style.text();
    const bool hasPercent = (placeholder.kind == PlaceholderKind::Number && style == "percent") ||
                            (placeholder.kind == PlaceholderKind::DecimalStyle && !style.empty() &&
                             style.back() == '%');
    const std::string_view file = placeholder.whole.file->text();
    const std::size_t end = placeholder.whole.end();
    if (hasPercent && end < file.size() && file[end] == '%') {
        diagnostics.report(rules::percentTwice, {placeholder.whole.file, end, 1},
                           "the number already has a percent sign");
    }
}

} // namespace

void checkPlaceholders(const PatternTree& tree, Diagnostics& diagnostics) {
    const std::map<int, bool> drivers = wholeDrivers(tree);
    for (const PatternText& text : tree.texts()) {
        for (const Placeholder& placeholder : text.placeholders) {
            checkIndex(placeholder, text, diagnostics);
            checkType(placeholder, diagnostics);
            checkStyleKeyword(placeholder, diagnostics);
            checkDecimals(placeholder, drivers, diagnostics);
            checkPercent(placeholder, diagnostics);
        }
    }
}

} // namespace zem::msglib::tool
