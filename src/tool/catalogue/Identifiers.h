#pragma once

#include "tool/diagnostics/Diagnostics.h"
#include "tool/text/SourceFile.h"

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>

namespace zem::msglib::tool {

/// A value that a head has by name.
struct NamedValue {
    Place place; ///< the name
    std::uint32_t number;
};

/// The head of a message: the statements from `MessageId` up to the first `Language`.
struct MessageHead {
    Place keyword;                      ///< `MessageId`
    Place number;                       ///< its value, or the keyword if there is none
    bool isRelative = false;            ///< whether `value` is a distance from the message before
    std::uint32_t value = 0;            ///< the number, or the distance
    std::optional<NamedValue> severity; ///< 2 bits
    std::optional<NamedValue> facility; ///< 12 bits
    std::optional<Place> symbol;        ///< the value of `SymbolicName`
    std::vector<Place> comments;        ///< those before it and in it
    bool isBroken = false;              ///< whether an error has been reported
};

/// Computes the identifiers of the messages of one file, in the order of the file.
///
/// Programs that read the format complete the missing values of a head in different ways. A head
/// whose identifier depends on that is reported, since any guess would be wrong for some files.
class Identifiers {
public:
    explicit Identifiers(Diagnostics& diagnostics) noexcept : diagnostics_(diagnostics) {}

    /// Returns the identifier of the next message.
    ///
    /// @param head  `isBroken` is set if the head is reported
    std::uint32_t next(MessageHead& head);

private:
    std::uint32_t severityOf(MessageHead& head);
    std::uint32_t facilityOf(MessageHead& head);
    std::uint32_t codeOf(MessageHead& head, std::uint32_t facility);
    void refuse(const Rule& rule, MessageHead& head, Place place, std::string words,
                std::vector<Note> notes = {});

    Diagnostics& diagnostics_;
    std::optional<NamedValue> lastSeverity_;
    std::optional<NamedValue> lastFacility_;
    std::uint64_t lastCode_ = 0;
    std::unordered_map<std::uint32_t, std::uint64_t> lastCodes_; ///< by facility
};

} // namespace zem::msglib::tool
