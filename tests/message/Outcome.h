#pragma once

#include "msglib/MessageFormat.h"
#include "msglib/MessageLibrary.h"

#include <geom/Angle.h>

#include <gtest/gtest.h>

#include <exception>
#include <list>
#include <string>
#include <vector>

namespace zem::msglib {

using Arguments = std::list<boost::any>;

inline const std::string unexpectedBrace = "unexpected closing brace";
inline const std::string illegalArgument = "Illegal argument in format string";
inline const std::string indexTooHigh =
    "Argument index in format exceeds number of specified arguments";
inline const std::string styleRequired = "style_ required for choice format";
inline const std::string notANumber = "Argument is not a number.";
inline const std::string notADate = "Invalid date argument type";
inline const std::string choiceSyntax = "Syntax error in choice format.";
inline const std::string longOutOfRange = "Value of type long is outside its 32-bit range";

/// Renders behind bytes that are already there, which have to stay.
///
/// Returns the text, and behind it "!" and the words of the failure if there is one.
template <class Formatter, class Value>
std::string textOf(const Formatter& formatter, const Value& value) {
    const std::string kept = "kept {0}'";
    std::string out = kept;
    std::string failure;
    try {
        EXPECT_EQ(&formatter.format(value, out), &out);
    } catch (const std::exception& caught) {
        failure = std::string("!") + caught.what();
    }
    EXPECT_EQ(out.substr(0, kept.size()), kept);
    return out.substr(kept.size()) + failure;
}

/// Renders at once, without a compiled form to keep: as `textOf`, or only "!" and the words.
inline std::string outcomeAtOnce(const std::string& pattern, const Arguments& args) {
    try {
        return MessageLibrary::instance().formatMessage(pattern, args);
    } catch (const std::exception& caught) {
        return std::string("!") + caught.what();
    }
}

/// Compiles and renders: as `textOf`, or "compile!" and the words if the pattern does not compile.
inline std::string outcome(const std::string& pattern, const Arguments& args) {
    std::string kept;
    try {
        kept = textOf(MessageFormat(pattern), args);
    } catch (const std::exception& caught) {
        kept = std::string("compile!") + caught.what();
    }
    const std::string atOnce = outcomeAtOnce(pattern, args);
    EXPECT_EQ(kept.find('!') != std::string::npos ? kept.substr(kept.rfind('!')) : kept, atOnce)
        << pattern;
    return kept;
}

struct OutcomeRow {
    int line;
    std::string pattern;
    Arguments args;
    std::string outcome;
};

inline void expectOutcomes(const std::vector<OutcomeRow>& rows) {
    for (const OutcomeRow& row : rows) {
        SCOPED_TRACE(row.line);
        EXPECT_EQ(outcome(row.pattern, row.args), row.outcome) << row.pattern;
    }
}

} // namespace zem::msglib
