#pragma once

#include "tool/checks/PatternChecks.h"
#include "tool/diagnostics/Diagnostics.h"
#include "tool/pattern/PatternTree.h"
#include "tool/text/Unicode.h"

#include "msglib/ChoiceFormat.h"
#include "msglib/MessageFormat.h"
#include "number/ChoiceReader.h"

#include <boost/any.hpp>

#include <algorithm>
#include <list>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>

namespace zem::msglib::tool {

/// Returns the words with which the library refuses a pattern; empty if it compiles.
inline std::string refusalOf(std::string_view pattern) {
    try {
        const MessageFormat format{std::string(pattern)};
        return {};
    } catch (const std::runtime_error& failure) {
        return failure.what();
    }
}

/// Tells whether each byte of a text is where it says it comes from, in ascending order.
inline bool isTracedRightly(const TracedText& text) {
    std::size_t next = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const std::size_t offset = text.placeOf(text.text().substr(at, 0)).offset;
        if (offset < next || text.file().text()[offset] != text.text()[at] ||
            text.find(offset) != at) {
            return false;
        }
        next = offset + 1;
    }
    return true;
}

/// Tells whether the library chooses the texts that the tree has, for the limits themselves and for
/// what is below all of them.
inline bool choosesAsTheLibrary(const PatternTree& tree, const Placeholder& choice) {
    const ChoiceFormat format{std::string(choice.style.text())};
    std::set<double> values = {-1e300};
    for (const ChoiceEntry& entry : choice.entries) {
        values.insert(entry.limit);
    }
    return std::all_of(values.begin(), values.end(), [&](double value) {
        ChoiceSearch search(value);
        std::string_view chosen;
        for (const ChoiceEntry& entry : choice.entries) {
            if (search.accepts(entry.limit)) {
                chosen = tree.texts()[entry.text].text.text();
            }
        }
        std::string expected;
        format.format(value, expected);
        return expected == chosen;
    });
}

/// Returns what doesn't hold for one text of a tree; empty if all holds.
inline std::string violationIn(const PatternTree& tree, const PatternText& text) {
    if (!isTracedRightly(text.text)) {
        return "each byte comes from where it says";
    }
    const std::string refusal = refusalOf(text.text.text());
    const auto hasWords = [&refusal](const SyntaxError& error) { return error.words == refusal; };
    if (refusal.empty() ? !text.errors.empty()
                        : std::none_of(text.errors.begin(), text.errors.end(), hasWords)) {
        return "the check accepts what the library accepts, and has its words";
    }
    for (const Placeholder& placeholder : text.placeholders) {
        if (refusal.empty() && !placeholder.entries.empty() &&
            !choosesAsTheLibrary(tree, placeholder)) {
            return "the texts are those that the library chooses";
        }
    }
    return {};
}

/// Returns what doesn't hold for the check of a pattern; empty if all holds.
///
/// @param pattern  valid UTF-8
inline std::string checkViolation(std::string_view pattern) {
    const SourceFile file("pattern", std::string(pattern));
    const PatternTree tree({&file, 0, file.text().size()});
    bool areTextsValid = true;
    bool isSyntaxRight = true;
    for (const PatternText& text : tree.texts()) {
        if (const std::string violation = violationIn(tree, text); !violation.empty()) {
            return violation + ": " + std::string(text.text.text());
        }
        isSyntaxRight &= text.errors.empty();
        areTextsValid &= validUtf8Length(text.text.text()) == text.text.size();
    }
    Diagnostics diagnostics;
    checkPattern(tree, diagnostics);
    bool hasSyntax = false;
    bool hasEncoding = false;
    for (const Diagnostic& diagnostic : diagnostics.take()) {
        hasSyntax |= diagnostic.rule == &rules::syntax;
        hasEncoding |= diagnostic.rule == &rules::invalidEncoding;
        if (diagnostic.place.end() > pattern.size()) {
            return "each place is in the pattern";
        }
    }
    if (hasSyntax == isSyntaxRight) {
        return "each error is reported, and no other";
    }
    return areTextsValid || hasEncoding ? "" : "each text that is not UTF-8 is reported";
}

} // namespace zem::msglib::tool
