#pragma once

#include "tool/changes/CatalogueVersion.h"

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zem::msglib::tool {

enum class ChangeKind : std::uint8_t { removed, renumbered, arguments, text, added };

/// Returns the name of a kind, such as `renumbered`.
const char* nameOf(ChangeKind kind) noexcept;

/// The text of a message in one language, in both versions.
struct TextChange {
    std::uint32_t language;
    std::optional<std::string> before; ///< with LF at line ends; nothing if there was none
    std::optional<std::string> after;
};

/// A change of one message.
struct Change {
    ChangeKind kind;
    bool breaks;                    ///< whether callers of the old version have to change
    const VersionedMessage* before; ///< null if it is added
    const VersionedMessage* after;  ///< null if it is removed
    std::string words;              ///< details of a new number or of arguments; else empty
    std::vector<TextChange> texts;  ///< none if another kind of change

    const VersionedMessage& message() const noexcept {
        assert(before != nullptr || after != nullptr);
        return before != nullptr ? *before : *after;
    }
};

/// Compares two versions of a catalogue. The changes are in the order of the old identifiers, with
/// added messages at the end.
///
/// Two messages correspond if they have the same symbolic name. If one of the versions does not
/// have the name, they correspond if they have the same identifier. The versions must outlive the
/// result.
///
/// A change breaks callers if a message is removed or renumbered, or if a call that fits the old
/// arguments does not fit the new ones.
std::vector<Change> changesBetween(const CatalogueVersion& before, const CatalogueVersion& after);

/// Returns whether one of the changes breaks callers.
bool breakCallers(const std::vector<Change>& changes) noexcept;

} // namespace zem::msglib::tool
