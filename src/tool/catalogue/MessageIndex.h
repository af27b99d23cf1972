#pragma once

#include "tool/catalogue/CallSignatures.h"
#include "tool/catalogue/Catalogue.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zem::msglib::tool {

/// A message with its texts in all languages. The file may have them in several heads.
struct IndexedMessage {
    const Message* head;                   ///< the first one
    std::vector<const MessageText*> texts; ///< in the order of the file
    std::vector<Parameter> parameters;     ///< of its typed call; empty if it cannot be called

    /// Returns the text of a language; null if there is none.
    const MessageText* textIn(std::uint32_t language) const noexcept;
};

/// The messages of a catalogue, by symbolic name or number. The catalogue must outlive the index.
class MessageIndex {
public:
    explicit MessageIndex(const Catalogue& catalogue);

    /// Returns all messages whose identifiers are known, in the order of the file.
    const std::vector<IndexedMessage>& messages() const noexcept { return messages_; }

    /// Returns the message with a symbolic name or an identifier, decimal or hexadecimal. A number
    /// that is not an identifier is a message number; it must belong to one message only.
    ///
    /// @throws CannotRun if there is no such message; the error names a message with a similar
    ///                   name, if any
    const IndexedMessage& find(const std::string& name) const;

    /// Returns the number of a language, which is given by its number or by its name in the file.
    ///
    /// @throws CannotRun if no text is in this language
    std::uint32_t language(const std::string& name) const;

private:
    const Catalogue& catalogue_;
    std::vector<IndexedMessage> messages_;
};

} // namespace zem::msglib::tool
