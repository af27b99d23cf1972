#include "tool/diagnostics/Diagnostics.h"

#include "tool/text/CannotRun.h"

#include <algorithm>
#include <functional>
#include <tuple>
#include <utility>

// The checks report diagnostics in any order, and allowances of comments as they are read. `take`
// sorts the allowances, removes the diagnostics that they or the command line silence, reports
// allowances that silenced nothing, and sorts the rest by file and position.

namespace zem::msglib::tool {

namespace {

bool isError(const Diagnostic& diagnostic) noexcept {
    return diagnostic.severity == Severity::error;
}

const Rule& ruleNamed(const std::string& name) {
    const Rule* rule = findRule(name);
    if (rule == nullptr) {
        throw CannotRun("there is no rule " + name);
    }
    return *rule;
}

bool comesBefore(const Place& one, const Place& other) {
    return std::make_tuple(one.file->number(), one.offset) <
           std::make_tuple(other.file->number(), other.offset);
}

} // namespace

SeverityPolicy::SeverityPolicy(const std::vector<std::string>& allowed,
                               const std::vector<std::string>& denied) {
    for (const std::string& name : allowed) {
        const Rule& rule = ruleNamed(name);
        if (!rule.mayBeAllowed) {
            throw CannotRun("the rule " + name + " cannot be allowed");
        }
        allowed_.insert(&rule);
    }
    for (const std::string& name : denied) {
        if (name == "warnings") {
            warningsAreErrors_ = true;
        } else {
            denied_.insert(&ruleNamed(name));
        }
    }
}

Severity SeverityPolicy::apply(const Rule& rule, Severity severity) const {
    if (allowed_.count(&rule) != 0) {
        return Severity::off;
    }
    const bool isRaised = warningsAreErrors_ && severity == Severity::warning;
    return isRaised || denied_.count(&rule) != 0 ? Severity::error : severity;
}

Diagnostics::Diagnostics(SeverityPolicy policy) : policy_(std::move(policy)) {}

bool Diagnostics::isOn(const Rule& rule) const {
    return policy_.apply(rule, rule.severity) != Severity::off;
}

void Diagnostics::report(const Rule& rule, Place place, std::string message,
                         std::vector<Note> notes) {
    report(rule, rule.severity, place, std::move(message), std::move(notes));
}

void Diagnostics::report(const Rule& rule, Severity severity, Place place, std::string message,
                         std::vector<Note> notes) {
    diagnostics_.push_back(
        {&rule, policy_.apply(rule, severity), place, std::move(message), std::move(notes)});
}

void Diagnostics::allow(const Rule& rule, Place directive, std::size_t begin, std::size_t end) {
    allowances_.push_back({&rule, directive, begin, end, false});
}

std::vector<Diagnostic> Diagnostics::take() {
    std::sort(allowances_.begin(), allowances_.end(),
              [](const Allowance& one, const Allowance& other) {
                  return comesBefore(one.directive, other.directive);
              });
    const auto silenced = [this](const Diagnostic& diagnostic) {
        return diagnostic.severity == Severity::off || isAllowed(diagnostic);
    };
    diagnostics_.erase(std::remove_if(diagnostics_.begin(), diagnostics_.end(), silenced),
                       diagnostics_.end());
    reportUnusedAllowances();
    std::stable_sort(diagnostics_.begin(), diagnostics_.end(),
                     [](const Diagnostic& one, const Diagnostic& other) {
                         return comesBefore(one.place, other.place);
                     });
    keepFirstOfFiles();
    return std::move(diagnostics_);
}

/// Returns whether a comment of the message around the diagnostic allows its rule. Messages do not
/// overlap, so the allowances of this message are the last ones that begin before the diagnostic.
bool Diagnostics::isAllowed(const Diagnostic& diagnostic) {
    const Place& place = diagnostic.place;
    auto allowance =
        std::upper_bound(allowances_.begin(), allowances_.end(), place,
                         [](const Place& wanted, const Allowance& candidate) {
                             const Place begin{candidate.directive.file, candidate.begin, 0};
                             return comesBefore(wanted, begin);
                         });
    bool found = false;
    while (allowance != allowances_.begin()) {
        --allowance;
        if (allowance->directive.file != place.file || place.offset >= allowance->end) {
            break;
        }
        if (allowance->rule == diagnostic.rule) {
            allowance->isUsed = true;
            found = true;
        }
    }
    return found;
}

void Diagnostics::reportUnusedAllowances() {
    for (const Allowance& allowance : allowances_) {
        if (!allowance.isUsed && isOn(*allowance.rule) && isOn(rules::unusedAllow)) {
            report(rules::unusedAllow, allowance.directive,
                   "nothing to allow: the message has no diagnostic of this rule");
        }
    }
}

void Diagnostics::keepFirstOfFiles() {
    std::set<std::pair<const Rule*, const SourceFile*>> seen;
    const auto isRepeated = [&seen](const Diagnostic& diagnostic) {
        return diagnostic.rule->isOncePerFile &&
               !seen.emplace(diagnostic.rule, diagnostic.place.file).second;
    };
    diagnostics_.erase(std::remove_if(diagnostics_.begin(), diagnostics_.end(), isRepeated),
                       diagnostics_.end());
}

std::vector<Diagnostic> errorsAmong(std::vector<Diagnostic> diagnostics) {
    const auto end = std::remove_if(diagnostics.begin(), diagnostics.end(), std::not_fn(isError));
    diagnostics.erase(end, diagnostics.end());
    return diagnostics;
}

bool hasErrors(const std::vector<Diagnostic>& diagnostics) {
    return std::any_of(diagnostics.begin(), diagnostics.end(), isError);
}

} // namespace zem::msglib::tool
