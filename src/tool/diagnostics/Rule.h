#pragma once

#include <string_view>
#include <vector>

namespace zem::msglib::tool {

/// How serious a diagnostic is, in ascending order.
enum class Severity {
    off,     ///< is not reported
    note,    ///< worth a look
    warning, ///< surely not meant
    error,   ///< fails at run time, or has no clear meaning; stops the build
};

/// One kind of problem that the tool reports. Rules are the constants of namespace `rules` below,
/// and are compared by address.
struct Rule {
    std::string_view name;
    Severity severity;
    bool mayBeAllowed;            ///< whether its diagnostics can be silenced
    std::string_view summary;     ///< what the rule reports, in one line without a full stop
    std::string_view explanation; ///< why that is a problem and what to write

    /// An example that the rule reports, and a correct one: patterns, or message text files of
    /// several lines. Both are empty if they cannot be written in UTF-8.
    std::string_view wrong;
    std::string_view right;

    bool isOncePerFile = false; ///< whether only the first diagnostic of a file is reported
};

/// Returns all rules, in the order in which documentation lists them.
const std::vector<const Rule*>& allRules();

/// Returns the rule with a name; null if there is none.
const Rule* findRule(std::string_view name);

namespace rules {

// The file and its syntax.
extern const Rule fileEncoding;
extern const Rule fileSyntax;
extern const Rule ambiguousHeader;

// Identifiers, over all catalogues that are compiled together.
extern const Rule duplicateId;
extern const Rule duplicateSymbol;
extern const Rule facilityClash;
extern const Rule reservedSymbol;
extern const Rule languageUnused;

// Patterns that fail or break UTF-8 at run time.
extern const Rule syntax;
extern const Rule invalidEncoding;
extern const Rule negativeIndex;

// Patterns that are surely not meant.
extern const Rule unknownType;
extern const Rule timeStyle;
extern const Rule indexTrailing;
extern const Rule choiceLimit;
extern const Rule choiceOrder;
extern const Rule choiceQuote;
extern const Rule choiceClosing;
extern const Rule quoteVanishes;
extern const Rule noDigitMark;
extern const Rule zeroVanishes;
extern const Rule decimalDigit;
extern const Rule decimalQuote;
extern const Rule implicitDecimals;
extern const Rule percentTwice;
extern const Rule dateLetter;
extern const Rule dateWord;
extern const Rule dateQuote;
extern const Rule minuteForMonth;
extern const Rule hourMarker;
extern const Rule foreignInsert;
extern const Rule unusedArgument;

// Patterns of one message in several languages.
extern const Rule translationArguments;

// Comments.
extern const Rule argumentAnnotation;
extern const Rule unusedAllow;

} // namespace rules

} // namespace zem::msglib::tool
