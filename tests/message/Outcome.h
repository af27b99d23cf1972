#pragma once

#include "msglib/MessageFormat.h"
#include "msglib/MessageLibrary.h"
#include "support/Rendering.h"

#include <geom/Angle.h>

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

/// Renders by a pattern or an identifier without compiling first. Returns the text, or only "!" and
/// the text of the failure.
template <class Message>
std::string directOutcome(const Message& message, const Arguments& args) {
    std::string text;
    const std::string failure =
        failureOf([&] { text = MessageLibrary::instance().formatMessage(message, args); }, "!");
    return text + failure;
}

/// Compiles and renders. Returns what `textOf` returns, or "compile!" and the text of the failure
/// if the pattern doesn't compile. Checks that rendering directly has the same result.
inline std::string outcome(const std::string& pattern, const Arguments& args) {
    std::string kept;
    const std::string failure =
        failureOf([&] { kept = textOf(MessageFormat(pattern), args); }, "compile!");
    kept += failure;
    EXPECT_EQ(kept.find('!') != std::string::npos ? kept.substr(kept.rfind('!')) : kept,
              directOutcome(pattern, args))
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
