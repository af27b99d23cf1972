#pragma once

#include "tool/text/SourceFile.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace zem::msglib::tool {

/// The language in which messages are looked up: English (United States).
constexpr std::uint32_t lookedUpLanguage = 0x409;

/// The facility bits of an identifier, and those of them that select the registered module.
constexpr std::uint32_t facilityBits = 0xFFF;
constexpr std::uint32_t moduleBits = 0x7FF;

/// The text of a message in one language.
struct MessageText {
    std::uint32_t language; ///< 16 bits
    Place languageName;     ///< the value of `Language`

    /// The text as it is rendered, with an LF after each line. The last line has none if a comment
    /// in the file asks for that. An offset into `pattern.text()` plus `pattern.offset` is the
    /// offset into the file.
    Place pattern;
};

/// A message: the values of its head, and a text for each language.
struct Message {
    Place head;   ///< the keyword `MessageId`
    Place number; ///< its value, or the keyword if there is none
    Place symbol; ///< the value of `SymbolicName`; without a file if there is none

    std::uint32_t id;  ///< severity, facility and number together
    bool isIdentified; ///< whether `id` and all languages are known

    std::vector<MessageText> texts; ///< at least one, in the order of the file
    std::vector<Place> comments;    ///< those before it and in its head, from the ";" on

    std::uint32_t facility() const noexcept { return id >> 16 & facilityBits; }
};

/// A message text file that has been read.
///
/// Each value lies in its range and each text fits an entry of a message table, unless an error has
/// been reported. Faults between several messages, such as a duplicate identifier, are not checked
/// yet.
struct Catalogue {
    std::unique_ptr<const SourceFile> source;
    std::vector<Message> messages;
};

/// Returns an identifier as people write it: 0xC1230001.
std::string hexadecimal(std::uint32_t id);

/// Returns a language as people write it: 0x0409.
std::string languageText(std::uint32_t language);

/// Returns the name and identifier of a message for a diagnostic: `MSG_COPIED (0x40120011)`, or the
/// identifier alone.
std::string describe(const Message& message);

} // namespace zem::msglib::tool
