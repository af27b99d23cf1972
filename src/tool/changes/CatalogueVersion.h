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
    std::string symbol;                         ///< empty if it has none or it is not known
    std::map<std::uint32_t, std::string> texts; ///< by language, with LF at line ends
    CallSignature signature;                    ///< its views refer to the version
};

/// All messages of a message text file or of a module, by their identifiers.
class CatalogueVersion {
public:
    /// @param catalogue     without errors
    /// @param withComments  whether comments may narrow the kinds of arguments
    CatalogueVersion(Catalogue catalogue, bool withComments);

    /// @param tables  of a module; a table without a language is treated as English (United States)
    explicit CatalogueVersion(const std::vector<LanguageTable>& tables);

    const std::map<std::uint32_t, VersionedMessage>& messages() const noexcept { return messages_; }

private:
    void readTexts(const Catalogue& catalogue);

    std::map<std::uint32_t, VersionedMessage> messages_;
    std::vector<std::unique_ptr<const SourceFile>> sources_; ///< the signatures refer to these
};

} // namespace zem::msglib::tool
