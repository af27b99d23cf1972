#include "tool/checks/MessageChecks.h"

#include "tool/catalogue/CallSignatures.h"
#include "tool/checks/PatternChecks.h"
#include "tool/pattern/PatternTree.h"
#include "tool/text/Progress.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>

namespace zem::msglib::tool {

namespace {

/// The arguments that a text uses, each with its first placeholder.
using Arguments = std::map<int, Place>;

/// Returns nothing for a text with errors, whose placeholders are not all known.
std::optional<Arguments> argumentsOf(const PatternTree& tree) {
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

/// Reports the first argument that is in one text only.
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

void checkMessage(const Message& message, Diagnostics& diagnostics) {
    std::vector<std::optional<Arguments>> arguments;
    std::optional<Arguments> reference;
    for (const MessageText& text : message.texts) {
        const PatternTree tree(text.pattern);
        checkPattern(tree, diagnostics);
        if (message.texts.size() > 1) {
            arguments.push_back(argumentsOf(tree));
        }
        if (message.texts.size() > 1 && text.language == lookedUpLanguage) {
            reference = arguments.back();
        }
    }
    for (std::size_t number = 0; reference && number < arguments.size(); ++number) {
        if (arguments[number]) {
            compare(message.texts[number], *arguments[number], *reference, diagnostics);
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
            checkMessage(message, diagnostics);
            progress.step();
        }
        readSignatures(catalogue, diagnostics); // which reports wrong comments about arguments
    }
}

} // namespace zem::msglib::tool
