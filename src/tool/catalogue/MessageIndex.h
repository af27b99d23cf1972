#pragma once

#include "tool/catalogue/CallSignatures.h"
#include "tool/catalogue/Catalogue.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zem::msglib::tool {

/// A message with its texts in all languages, which the file may have in several heads.
struct IndexedMessage {
    const Message* head;                   ///< the first one
    std::vector<const MessageText*> texts; ///< in the order of the file
    std::vector<Parameter> parameters;     ///< as its typed call has them; empty without a call

    /// Returns the text of a language; null if there is none.
    const MessageText* textIn(std::uint32_t language) const noexcept;
};

/// The messages of a catalogue, found as people name them. It borrows the catalogue.
class MessageIndex {
public:
    explicit MessageIndex(const Catalogue& catalogue);

    /// Returns all messages whose identifiers are known, in the order of the file.
    const std::vector<IndexedMessage>& messages() const noexcept { return messages_; }

    /// Returns the message of a symbolic name or an identifier, decimal or hexadecimal. A number
    /// that is no identifier may be the message number of a single one.
    ///
    /// @throws CannotRun if there is no such message; the words name the one that is meant, if that
    ///         is clear
    const IndexedMessage& find(const std::string& name) const;

    /// Returns the number of a language, from its number or from its name in the file.
    ///
    /// @throws CannotRun if no text is in this language
    std::uint32_t language(const std::string& name) const;

private:
    const Catalogue& catalogue_;
    std::vector<IndexedMessage> messages_;
};

} // namespace zem::msglib::tool
