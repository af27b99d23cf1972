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

/// Returns the text of the failure of compiling a pattern, or nothing if it compiles.
inline std::string failureOfCompiling(std::string_view pattern) {
    try {
        const MessageFormat format{std::string(pattern)};
        return {};
    } catch (const std::runtime_error& failure) {
        return failure.what();
    }
}

/// Returns whether the traced offset of each byte has that byte in the file, in ascending order.
inline bool hasTrueOffsets(const TracedText& text) {
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

/// Returns whether the library chooses the same texts as the tree, for the limits and for a number
/// below all limits.
inline bool choosesLikeTheLibrary(const PatternTree& tree, const Placeholder& choice) {
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

/// Returns the property that one text of a tree violates, or nothing.
inline std::string violationIn(const PatternTree& tree, const PatternText& text) {
    if (!hasTrueOffsets(text.text)) {
        return "each byte has its offset in the file";
    }
    const std::string failure = failureOfCompiling(text.text.text());
    const auto hasMessage = [&failure](const SyntaxError& error) {
        return error.message == failure;
    };
    if (failure.empty() ? !text.errors.empty()
                        : std::none_of(text.errors.begin(), text.errors.end(), hasMessage)) {
        return "the check accepts what the library accepts, and reports its failures";
    }
    for (const Placeholder& placeholder : text.placeholders) {
        if (failure.empty() && !placeholder.entries.empty() &&
            !choosesLikeTheLibrary(tree, placeholder)) {
            return "the library chooses the same texts";
        }
    }
    return {};
}

/// Returns the property that the check of a pattern violates, or nothing.
///
/// @param pattern  valid UTF-8
inline std::string checkViolation(std::string_view pattern) {
    const SourceFile file("pattern", std::string(pattern));
    const PatternTree tree({&file, 0, file.text().size()});
    bool areTextsValid = true;
    bool isSyntaxValid = true;
    for (const PatternText& text : tree.texts()) {
        if (const std::string violation = violationIn(tree, text); !violation.empty()) {
            return violation + ": " + std::string(text.text.text());
        }
        isSyntaxValid &= text.errors.empty();
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
    if (hasSyntax == isSyntaxValid) {
        return "errors are reported, and nothing else as an error";
    }
    return areTextsValid || hasEncoding ? "" : "texts that are not UTF-8 are reported";
}

} // namespace zem::msglib::tool
