#pragma once

#include "tool/diagnostics/Rule.h"
#include "tool/text/SourceFile.h"

#include <set>
#include <string>
#include <vector>

namespace zem::msglib::tool {

/// A remark below a diagnostic: what to write instead, or another place that belongs to the
/// problem.
struct Note {
    std::string message;
    Place place = {}; ///< if it has no file, the place of the diagnostic
};

/// One problem in a file.
struct Diagnostic {
    const Rule* rule;
    Severity severity;
    Place place;
    std::string message; ///< begins in lower case and has no full stop
    std::vector<Note> notes;
};

/// The changes of rule severities on the command line.
class SeverityPolicy {
public:
    /// @param allowed  names of rules whose diagnostics are left out
    /// @param denied   names of rules whose diagnostics are errors, also of rules that are off; or
    /// `warnings`, which makes errors of all warnings. A rule that is in both lists is allowed.
    /// @throws CannotRun for an unknown rule, and for a rule that cannot be allowed
    SeverityPolicy(const std::vector<std::string>& allowed, const std::vector<std::string>& denied);
    SeverityPolicy() = default;

    /// Returns the final severity of a diagnostic whose severity by its rule is `severity`.
    Severity apply(const Rule& rule, Severity severity) const;

private:
    std::set<const Rule*> allowed_;
    std::set<const Rule*> denied_;
    bool warningsAreErrors_ = false;
};

/// Collects the diagnostics of one run.
class Diagnostics {
public:
    explicit Diagnostics(SeverityPolicy policy = {});

    /// Returns whether a rule is on, also one that is off by default.
    bool isOn(const Rule& rule) const;

    /// Adds a diagnostic with the severity of its rule.
    void report(const Rule& rule, Place place, std::string message, std::vector<Note> notes = {});

    /// Adds a diagnostic with its own severity, for rules with several severities.
    void report(const Rule& rule, Severity severity, Place place, std::string message,
                std::vector<Note> notes = {});

    /// Silences a rule between two offsets of a file, as a comment in the file asks.
    ///
    /// @param directive  the rule's name in the comment, with its file
    void allow(const Rule& rule, Place directive, std::size_t begin, std::size_t end);

    /// Returns all diagnostics by file and position, without silenced ones, and with a diagnostic
    /// for each allowance that silenced nothing. To be called once, after all checks.
    std::vector<Diagnostic> take();

private:
    struct Allowance {
        const Rule* rule;
        Place directive;
        std::size_t begin;
        std::size_t end;
        bool isUsed;
    };

    bool isAllowed(const Diagnostic& diagnostic);
    void reportUnusedAllowances();
    void keepFirstOfFiles();

    SeverityPolicy policy_;
    std::vector<Diagnostic> diagnostics_;
    std::vector<Allowance> allowances_; ///< in order once `take` has sorted them
};

/// Returns those diagnostics that are errors.
std::vector<Diagnostic> errorsAmong(std::vector<Diagnostic> diagnostics);

/// Returns whether one of the diagnostics is an error.
bool hasErrors(const std::vector<Diagnostic>& diagnostics);

} // namespace zem::msglib::tool
