#pragma once

#include "tool/changes/CatalogueVersion.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zem::msglib::tool {

enum class ChangeKind : std::uint8_t { removed, renumbered, arguments, text, added };

/// Returns the name of a kind, such as `renumbered`.
const char* nameOf(ChangeKind kind) noexcept;

/// The text of a message in one language, as the versions have it.
struct TextChange {
    std::uint32_t language;
    std::optional<std::string> before; ///< with LF at line ends; nothing if there was none
    std::optional<std::string> after;
};

/// What has changed about one message.
struct Change {
    ChangeKind kind;
    bool breaks;                    ///< whether callers of the old version have to change
    const VersionedMessage* before; ///< null if it is added
    const VersionedMessage* after;  ///< null if it is removed
    std::string words;              ///< about a new number or arguments; else empty
    std::vector<TextChange> texts;  ///< those of another kind than that have none

    const VersionedMessage& message() const noexcept {
        return before != nullptr ? *before : *after;
    }
};

/// Compares two versions of a catalogue, in the order of the old identifiers, with what is added at
/// the end.
///
/// A message is the same one where its symbolic name is, and where one of the versions does not
/// know the name, where its identifier is. The versions must outlive the result.
///
/// Callers break if a message is removed or renumbered, and if a call of the old version does not
/// fit the arguments of the new one.
std::vector<Change> changesBetween(const CatalogueVersion& before, const CatalogueVersion& after);

/// Tells whether one of the changes breaks callers.
bool breakCallers(const std::vector<Change>& changes) noexcept;

} // namespace zem::msglib::tool
