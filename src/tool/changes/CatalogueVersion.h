#pragma once

#include "tool/catalogue/CallSignatures.h"
#include "tool/catalogue/Catalogue.h"
#include "tool/diagnostics/Diagnostics.h"
#include "tool/table/ModuleTables.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace zem::msglib::tool {

/// A message as one version of a catalogue has it.
struct VersionedMessage {
    std::uint32_t id = 0;
    std::string symbol;                         ///< empty if it has none, or none is known
    std::map<std::uint32_t, std::string> texts; ///< by language, with LF at line ends
    CallSignature signature;                    ///< which points into the version
};

/// All messages of a message text file or of a module, by their identifiers.
class CatalogueVersion {
public:
    /// @param catalogue     without errors
    /// @param withComments  whether comments count that narrow the kinds of arguments
    CatalogueVersion(Catalogue catalogue, bool withComments);

    /// @param tables  of a module; one without a language is taken for the language that is looked up
    explicit CatalogueVersion(const std::vector<LanguageTable>& tables);

    const std::map<std::uint32_t, VersionedMessage>& messages() const noexcept { return messages_; }

private:
    void readTexts(const Catalogue& catalogue);

    std::map<std::uint32_t, VersionedMessage> messages_;
    std::vector<std::unique_ptr<const SourceFile>> sources_; ///< which the signatures point into
};

} // namespace zem::msglib::tool
