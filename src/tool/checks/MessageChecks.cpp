#include "tool/checks/MessageChecks.h"

#include "tool/checks/PatternChecks.h"
#include "tool/pattern/PatternTree.h"
#include "tool/text/Progress.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

// Catalogues go in, diagnostics come out. Each text of each message is checked by itself as a
// pattern tree. Then the texts of each identifier are collected from all catalogues, and the
// arguments of each translation are compared with those of the text that programs show.

namespace zem::msglib::tool {

namespace {

/// The arguments that a text uses, each with its first placeholder.
using Arguments = std::map<int, Place>;

/// The texts of each message, which may be in several heads and in several catalogues.
using TextsById = std::map<std::uint32_t, std::vector<const MessageText*>>;

TextsById textsById(const std::vector<Catalogue>& catalogues) {
    TextsById texts;
    for (const Catalogue& catalogue : catalogues) {
        for (const Message& message : catalogue.messages) {
            for (const MessageText& text : message.texts) {
                if (message.isIdentified) {
                    texts[message.id].push_back(&text);
                }
            }
        }
    }
    return texts;
}

/// Returns the arguments of a text; nothing for a text with errors, since not all of its
/// placeholders are known.
std::optional<Arguments> argumentsOf(const MessageText& message) {
    const PatternTree tree(message.pattern);
    Arguments arguments;
    for (const PatternText& text : tree.texts()) {
        if (!text.errors.empty()) {
            return std::nullopt;
        }
        for (const Placeholder& placeholder : text.placeholders) {
            arguments.emplace(placeholder.index, placeholder.indexText.place());
        }
    }
    return arguments;
}

/// Reports the first argument that only one of the texts uses.
void compare(const MessageText& text, const Arguments& own, const Arguments& reference,
             Diagnostics& diagnostics) {
    for (const auto& [index, place] : own) {
        if (reference.count(index) == 0) {
            diagnostics.report(rules::translationArguments, place,
                               "the text in 0x409 does not use argument " + std::to_string(index));
            return;
        }
    }
    for (const auto& [index, place] : reference) {
        if (own.count(index) == 0) {
            diagnostics.report(rules::translationArguments, text.languageName,
                               "this text does not use argument " + std::to_string(index),
                               {{"the text in 0x409 uses it", place}});
            return;
        }
    }
}

/// Compares the texts of a message with its text in English (United States).
void checkTranslations(const std::vector<const MessageText*>& texts, Diagnostics& diagnostics) {
    const auto lookedUp = std::find_if(texts.begin(), texts.end(), [](const MessageText* text) {
        return text->language == lookedUpLanguage;
    });
    const auto reference = lookedUp == texts.end() ? std::nullopt : argumentsOf(**lookedUp);
    for (const MessageText* const text : texts) {
        const auto own = reference ? argumentsOf(*text) : std::nullopt;
        if (own) {
            compare(*text, *own, *reference, diagnostics);
        }
    }
}

} // namespace

void checkMessages(const std::vector<Catalogue>& catalogues, Diagnostics& diagnostics) {
    std::size_t total = 0;
    for (const Catalogue& catalogue : catalogues) {
        total += catalogue.messages.size();
    }
    Progress progress("checking message", total);
    for (const Catalogue& catalogue : catalogues) {
        for (const Message& message : catalogue.messages) {
            for (const MessageText& text : message.texts) {
                checkPattern(PatternTree(text.pattern), diagnostics);
            }
            progress.step();
        }
    }
    for (const auto& [id, texts] : textsById(catalogues)) {
        if (texts.size() > 1) {
            checkTranslations(texts, diagnostics);
        }
    }
}

} // namespace zem::msglib::tool
