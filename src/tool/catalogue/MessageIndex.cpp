#include "tool/catalogue/MessageIndex.h"

#include "tool/text/CannotRun.h"
#include "tool/text/Names.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>

// A catalogue goes in, an index of its messages by identifier comes out. The heads of one
// identifier are joined into one message. A lookup compares symbolic names and whole identifiers,
// then message numbers. If all fail, the error suggests a similar name.

namespace zem::msglib::tool {

namespace {

constexpr std::uint32_t numberBits = 0xFFFF;

/// Reads a number, decimal or hexadecimal. Returns nothing if it is not a number of 32 bits.
std::optional<std::uint32_t> readNumber(std::string_view text) {
    const bool isHexadecimal = text.size() > 2 && equalInAnyCase(text.substr(0, 2), "0x");
    text.remove_prefix(isHexadecimal ? 2 : 0);
    std::uint32_t value = 0;
    const char* const end = text.data() + text.size();
    const auto [position, error] =
        std::from_chars(text.data(), end, value, isHexadecimal ? 16 : 10);
    return error == std::errc() && position == end ? std::optional(value) : std::nullopt;
}

std::string meaning(std::string_view name, const std::vector<std::string_view>& candidates) {
    const auto meant = nearest(name, candidates);
    return meant ? "; did you mean " + std::string(*meant) + "?" : "";
}

} // namespace

const MessageText* IndexedMessage::textIn(std::uint32_t language) const noexcept {
    const auto found = std::find_if(texts.begin(), texts.end(), [language](const auto* text) {
        return text->language == language;
    });
    return found == texts.end() ? nullptr : *found;
}

MessageIndex::MessageIndex(const Catalogue& catalogue) : catalogue_(catalogue) {
    std::map<std::uint32_t, std::size_t> positions;
    for (const Message& message : catalogue.messages) {
        if (!message.isIdentified) {
            continue;
        }
        const auto [position, isNew] = positions.emplace(message.id, messages_.size());
        if (isNew) {
            messages_.push_back({&message, {}, {}});
        }
        for (const MessageText& text : message.texts) {
            messages_[position->second].texts.push_back(&text);
        }
    }
    Diagnostics reportedByChecks;
    std::map<std::string_view, std::vector<Parameter>> parameters;
    for (CallSignature& signature : readSignatures(catalogue, reportedByChecks)) {
        parameters[signature.symbol] = std::move(signature.parameters);
    }
    for (IndexedMessage& message : messages_) {
        const Place& symbol = message.head->symbol;
        message.parameters =
            symbol.file != nullptr ? parameters[symbol.text()] : std::vector<Parameter>();
    }
}

const IndexedMessage& MessageIndex::find(const std::string& name) const {
    std::vector<std::string_view> symbols;
    const IndexedMessage* numbered = nullptr;
    std::size_t withNumber = 0;
    const auto number = readNumber(name);
    for (const IndexedMessage& message : messages_) {
        const Place& symbol = message.head->symbol;
        if (number == message.head->id || (symbol.file != nullptr && symbol.text() == name)) {
            return message;
        }
        if (symbol.file != nullptr) {
            symbols.push_back(symbol.text());
        }
        if (number == (message.head->id & numberBits)) {
            numbered = &message;
            ++withNumber;
        }
    }
    if (withNumber == 1) {
        return *numbered;
    }
    throw CannotRun(catalogue_.source->name() + " has no message " + name +
                    (withNumber > 1 ? "; several have this number, so write the whole identifier"
                                    : meaning(name, symbols)));
}

std::uint32_t MessageIndex::language(const std::string& name) const {
    const auto number = readNumber(name);
    std::map<std::string_view, std::uint32_t> languages;
    for (const IndexedMessage& message : messages_) {
        for (const MessageText* text : message.texts) {
            if (text->language == number || equalInAnyCase(text->languageName.text(), name)) {
                return text->language;
            }
            languages.emplace(text->languageName.text(), text->language);
        }
    }
    std::vector<std::string_view> names;
    names.reserve(languages.size());
    for (const auto& [known, value] : languages) {
        names.push_back(known);
    }
    throw CannotRun(catalogue_.source->name() + " has no text in the language " + name +
                    meaning(name, names));
}

} // namespace zem::msglib::tool
