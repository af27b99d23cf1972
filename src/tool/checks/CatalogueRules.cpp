#include "tool/checks/CatalogueRules.h"

#include "tool/catalogue/ReservedNames.h"

#include <algorithm>
#include <map>
#include <set>
#include <string_view>
#include <unordered_map>

// All catalogues of a module go in, diagnostics come out. One pass over all messages keeps the
// first message with each symbol, identifier and facility. Each later message is compared with
// these.

namespace zem::msglib::tool {

namespace {

/// Visits all messages in the order of their files, and keeps the first one with each name,
/// identifier and facility.
class IdentifierRules {
public:
    explicit IdentifierRules(Diagnostics& diagnostics) : diagnostics_(diagnostics) {}

    void check(const Catalogue& catalogue) {
        for (const Message& message : catalogue.messages) {
            checkReserved(message);
            if (message.isIdentified) {
                checkSymbol(message);
                checkTexts(message);
                checkFacility(message);
            }
        }
        checkLanguages(catalogue);
    }

private:
    void checkReserved(const Message& message) {
        const std::string_view symbol =
            message.symbol.file != nullptr ? message.symbol.text() : std::string_view();
        if (isKeywordOfCpp(symbol)) {
            diagnostics_.report(rules::reservedSymbol, message.symbol,
                                "this is a keyword of C++, not a name for a constant");
        } else if (isMacroOfC(symbol)) {
            diagnostics_.report(rules::reservedSymbol, Severity::warning, message.symbol,
                                "this is a macro of the C library");
        } else if (isReservedForCompilers(symbol)) {
            diagnostics_.report(rules::reservedSymbol, Severity::warning, message.symbol,
                                "names with such underscores are reserved for the compiler");
        }
    }

    /// In one file, a symbol may come again with the same message, for another language. In two
    /// files it may not, since two headers that define it cannot be included together.
    void checkSymbol(const Message& message) {
        if (message.symbol.file == nullptr) {
            return;
        }
        const auto [known, isNew] = symbols_.emplace(message.symbol.text(), &message);
        const Message& first = *known->second;
        if (isNew || (first.id == message.id && first.symbol.file == message.symbol.file)) {
            return;
        }
        const std::string words = first.id == message.id
                                      ? "another catalogue has this symbolic name"
                                      : "this symbolic name already stands for " +
                                            hexadecimal(first.id) + ", and here for " +
                                            hexadecimal(message.id);
        diagnostics_.report(rules::duplicateSymbol, message.symbol, words,
                            {{"the first one is here", first.symbol}});
    }

    void checkTexts(const Message& message) {
        for (const MessageText& text : message.texts) {
            const std::uint64_t key = std::uint64_t{text.language} << 32 | message.id;
            const auto [known, isNew] = texts_.emplace(key, Owner{&message, &text});
            if (isNew) {
                continue;
            }
            const auto& [first, firstText] = known->second;
            const bool hasOneText = message.texts.size() == 1;
            diagnostics_.report(rules::duplicateId, hasOneText ? message.number : text.languageName,
                                describe(message) + " comes twice in the language " +
                                    std::string(text.languageName.text()),
                                {{"the first one, " + describe(*first) + ", is here",
                                  hasOneText ? first->number : firstText->languageName}});
        }
    }

    void checkFacility(const Message& message) {
        const std::uint32_t facility = message.facility();
        const auto [known, isNew] = facilities_.emplace(facility & moduleBits, &message);
        const Message& first = *known->second;
        // Each pair is reported once, at the second facility.
        if (isNew || first.facility() == facility || !clashes_.insert(facility).second) {
            return;
        }
        diagnostics_.report(rules::facilityClash, message.head,
                            "the facilities of " + describe(message) + " and " + describe(first) +
                                " select the same module, since they differ only in bit 27",
                            {{"the other message is here", first.head}});
    }

    void checkLanguages(const Catalogue& catalogue) {
        const auto isLookedUp = [](const Message& message) {
            return !message.isIdentified ||
                   std::any_of(
                       message.texts.begin(), message.texts.end(),
                       [](const MessageText& text) { return text.language == lookedUpLanguage; });
        };
        const auto& messages = catalogue.messages;
        if (!messages.empty() && std::none_of(messages.begin(), messages.end(), isLookedUp)) {
            diagnostics_.report(rules::languageUnused, messages.front().texts.front().languageName,
                                "the file has no text in English (United States), 0x409: none of "
                                "its messages is ever found");
        }
    }

    struct Owner {
        const Message* message;
        const MessageText* text;
    };

    Diagnostics& diagnostics_;
    std::unordered_map<std::string_view, const Message*> symbols_;
    std::unordered_map<std::uint64_t, Owner> texts_;     ///< by language and identifier
    std::map<std::uint32_t, const Message*> facilities_; ///< by the bits that select a module
    std::set<std::uint32_t> clashes_;                    ///< facilities that have been reported
};

} // namespace

void checkIdentifiers(const std::vector<Catalogue>& catalogues, Diagnostics& diagnostics) {
    IdentifierRules rules(diagnostics);
    for (const Catalogue& catalogue : catalogues) {
        rules.check(catalogue);
    }
}

} // namespace zem::msglib::tool
