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
    std::string_view explanation; ///< why that is a problem and what to write, with an example
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

// Allowances in comments.
extern const Rule unusedAllow;

} // namespace rules

} // namespace zem::msglib::tool
