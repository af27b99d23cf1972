#pragma once

#include <string_view>
#include <vector>

namespace zem::msglib::tool {

/// How much a diagnostic matters; the higher, the more.
enum class Severity {
    off,     ///< is not reported
    note,    ///< worth a look
    warning, ///< surely not meant
    error,   ///< fails at run time, or leaves open what is meant; stops the build
};

/// One kind of problem that the tool reports. Rules are the constants of namespace `rules` below,
/// and told apart by their addresses.
struct Rule {
    std::string_view name;
    Severity severity;
    bool mayBeAllowed; ///< whether its diagnostics can be silenced: not if nothing can be compiled
    std::string_view summary;     ///< what it fires on, in one line without a full stop
    std::string_view explanation; ///< why that is a problem and what to write

    /// Two examples, the first of which the rule fires on: patterns, or message text files of
    /// several lines. Both are empty if they can't be written in UTF-8.
    std::string_view wrong;
    std::string_view right;

    bool isOncePerFile = false; ///< whether only the first diagnostic of a file is reported
};

/// Returns all rules, in the order in which documentation lists them.
const std::vector<const Rule*>& allRules();

/// Returns the rule of a name; null if there is none.
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

// Patterns: what fails or breaks UTF-8 at run time.
extern const Rule syntax;
extern const Rule invalidEncoding;
extern const Rule negativeIndex;

// Patterns: what surely isn't meant.
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
