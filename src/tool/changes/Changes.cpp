#include "tool/changes/Changes.h"

#include <algorithm>
#include <set>
#include <string_view>
#include <unordered_map>
#include <utility>

// Two versions of a catalogue go in, a list of changes comes out. `Finder` pairs each old message
// with the new message of the same symbolic name or identifier. The numbers,
// arguments and texts of each pair are compared. Old messages without a partner are reported as
// removed, new ones as added.

namespace zem::msglib::tool {

namespace {

/// Returns whether every value that a call may pass for the kind `before` also fits the kind
/// `after`.
bool stillFits(ValueKind before, ValueKind after) noexcept {
    const bool isNumberOfSeconds = before == ValueKind::numberAndTime;
    switch (after) {
    case ValueKind::any: return before != ValueKind::time; // a time point cannot be streamed
    case ValueKind::number:
    case ValueKind::time: return before == after || isNumberOfSeconds;
    default: return before == after;
    }
}

std::string describe(std::size_t index, const Parameter& parameter) {
    return "argument " + std::to_string(index) +
           (parameter.name.empty() ? "" : " (" + std::string(parameter.name) + ")");
}

/// The differences in the arguments of a message.
struct ArgumentChange {
    std::string words; ///< the differences; empty if there are none
    bool breaks = false;

    void add(const std::string& more, bool moreBreaks) {
        words += (words.empty() ? "" : "; ") + more;
        breaks = breaks || moreBreaks;
    }
};

ArgumentChange compareArguments(const CallSignature& before, const CallSignature& after) {
    ArgumentChange change;
    if (!before.refusal.empty() || !after.refusal.empty()) {
        if (before.refusal != after.refusal) {
            const bool isNew = before.refusal.empty();
            change.add(after.refusal.empty() ? "it can be called now" : "it " + after.refusal,
                       isNew);
        }
        return change;
    }
    const auto& old = before.parameters;
    const auto& now = after.parameters;
    for (std::size_t index = 0; index < std::min(old.size(), now.size()); ++index) {
        if (old[index].kind != now[index].kind) {
            change.add(describe(index, old[index]) + " was " + nameOf(old[index].kind) + ", is " +
                           nameOf(now[index].kind),
                       !stillFits(old[index].kind, now[index].kind));
        }
    }
    for (std::size_t index = now.size(); index < old.size(); ++index) {
        change.add(describe(index, old[index]) + " is gone", true);
    }
    for (std::size_t index = old.size(); index < now.size(); ++index) {
        change.add(describe(index, now[index]) + " is new", true);
    }
    return change;
}

using Texts = std::map<std::uint32_t, std::string>;

/// Returns the texts that differ.
std::vector<TextChange> compareTexts(const Texts& before, const Texts& after) {
    std::map<std::uint32_t, TextChange> changes;
    for (const auto& [language, text] : before) {
        changes[language] = {language, text, std::nullopt};
    }
    for (const auto& [language, text] : after) {
        changes[language].language = language;
        changes[language].after = text;
    }
    std::vector<TextChange> different;
    for (auto& [language, change] : changes) {
        if (change.before != change.after) {
            different.push_back(std::move(change));
        }
    }
    return different;
}

/// Finds corresponding messages in a version.
class Finder {
public:
    explicit Finder(const CatalogueVersion& version) : version_(version) {
        for (const auto& [id, message] : version.messages()) {
            if (!message.symbol.empty()) {
                bySymbol_.emplace(message.symbol, &message);
            }
        }
    }

    /// Returns the message that corresponds to one of the other version; null if there is none.
    const VersionedMessage* find(const VersionedMessage& other) const {
        const auto bySymbol = bySymbol_.find(other.symbol);
        if (bySymbol != bySymbol_.end()) {
            return bySymbol->second;
        }
        const auto byId = version_.messages().find(other.id);
        if (byId == version_.messages().end()) {
            return nullptr;
        }
        const bool isSame = byId->second.symbol.empty() || other.symbol.empty();
        return isSame ? &byId->second : nullptr;
    }

private:
    const CatalogueVersion& version_;
    std::unordered_map<std::string_view, const VersionedMessage*> bySymbol_;
};

void compareMessages(const VersionedMessage& before, const VersionedMessage& after,
                     std::vector<Change>& changes) {
    const auto add = [&](ChangeKind kind, bool breaks, std::string words,
                         std::vector<TextChange> texts) {
        changes.push_back({kind, breaks, &before, &after, std::move(words), std::move(texts)});
    };
    if (before.id != after.id) {
        add(ChangeKind::renumbered, true, "now " + hexadecimal(after.id), {});
    }
    ArgumentChange arguments = compareArguments(before.signature, after.signature);
    if (!arguments.words.empty()) {
        add(ChangeKind::arguments, arguments.breaks, std::move(arguments.words), {});
    }
    std::vector<TextChange> texts = compareTexts(before.texts, after.texts);
    if (!texts.empty()) {
        add(ChangeKind::text, false, {}, std::move(texts));
    }
}

} // namespace

const char* nameOf(ChangeKind kind) noexcept {
    constexpr const char* names[] = {"removed", "renumbered", "arguments", "text", "added"};
    return names[static_cast<std::size_t>(kind)];
}

std::vector<Change> changesBetween(const CatalogueVersion& before, const CatalogueVersion& after) {
    const Finder finder(after);
    std::vector<Change> changes;
    std::set<const VersionedMessage*> kept;
    for (const auto& [id, message] : before.messages()) {
        const VersionedMessage* const now = finder.find(message);
        if (now != nullptr && kept.insert(now).second) {
            compareMessages(message, *now, changes);
        } else {
            changes.push_back({ChangeKind::removed,
                               true,
                               &message,
                               nullptr,
                               {},
                               compareTexts(message.texts, {})});
        }
    }
    for (const auto& [id, message] : after.messages()) {
        if (kept.count(&message) == 0) {
            changes.push_back(
                {ChangeKind::added, false, nullptr, &message, {}, compareTexts({}, message.texts)});
        }
    }
    return changes;
}

bool breakCallers(const std::vector<Change>& changes) noexcept {
    return std::any_of(changes.begin(), changes.end(),
                       [](const Change& change) { return change.breaks; });
}

} // namespace zem::msglib::tool
