#include "tool/changes/CatalogueVersion.h"

#include "tool/text/Strings.h"

#include <utility>

namespace zem::msglib::tool {

namespace {

/// Returns a text of a table with an LF in place of each CR LF.
std::string withLineFeeds(const std::string& text) {
    std::string result;
    for (const std::string_view line : linesOf(text)) {
        result.append(line) += '\n';
    }
    if (!text.empty() && text.back() != '\n') {
        result.pop_back();
    }
    return result;
}

} // namespace

CatalogueVersion::CatalogueVersion(Catalogue catalogue, bool withComments) {
    readTexts(catalogue);
    if (withComments) {
        Diagnostics reportedByOthers;
        for (auto& [id, signature] : readSignaturesById(catalogue, reportedByOthers)) {
            messages_.at(id).signature = std::move(signature);
        }
    }
    sources_.push_back(std::move(catalogue.source));
}

void CatalogueVersion::readTexts(const Catalogue& catalogue) {
    for (const Message& message : catalogue.messages) {
        VersionedMessage& known = messages_[message.id];
        known.id = message.id;
        if (known.symbol.empty() && message.symbol.file != nullptr) {
            known.symbol = message.symbol.text();
        }
        for (const MessageText& text : message.texts) {
            known.texts.emplace(text.language, text.pattern.text());
            if (text.language == lookedUpLanguage) {
                known.signature = readSignature(text.pattern);
            }
        }
    }
}

CatalogueVersion::CatalogueVersion(const std::vector<LanguageTable>& tables) {
    for (const LanguageTable& table : tables) {
        const std::uint32_t language = table.language.value_or(lookedUpLanguage);
        for (const auto& [id, text] : table.texts) {
            VersionedMessage& known = messages_[id];
            known.id = id;
            const auto [place, isNew] = known.texts.emplace(language, withLineFeeds(text));
            if (language == lookedUpLanguage && isNew) {
                sources_.push_back(
                    std::make_unique<const SourceFile>(std::string(), place->second));
                const SourceFile& source = *sources_.back();
                known.signature = readSignature({&source, 0, source.text().size()});
            }
        }
    }
}

} // namespace zem::msglib::tool
