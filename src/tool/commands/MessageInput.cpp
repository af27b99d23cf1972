#include "tool/commands/MessageInput.h"

#include "tool/catalogue/CatalogueReader.h"
#include "tool/checks/CatalogueRules.h"
#include "tool/checks/MessageChecks.h"
#include "tool/checks/PatternChecks.h"
#include "tool/text/CannotRun.h"
#include "tool/text/Unicode.h"

#include <CLI/CLI.hpp>

#include <utility>

// The options name a file and perhaps one of its messages, or a pattern; a list of texts comes out.
// A file is read and checked as by `msglib check`, without warnings and notes. Then the texts of
// the chosen messages are collected, each with its title and what is known about its arguments.

namespace zem::msglib::tool {

void MessageInput::addTo(CLI::App& command, bool takesArguments) {
    command.add_option("FILE", file_, "Message text file (.mc)");
    command.add_option("SYMBOL", name_,
                       "Symbolic name or identifier of a message; without it, all messages");
    if (takesArguments) {
        command.add_option("ARGUMENT", arguments_,
                           "Arguments of the message: 7, 1.5, true, Text, \"7\" with the quotation "
                           "marks for a text, 2026-11-23T13:30 for a point in time");
    }
    command.add_option("--pattern", pattern_, "A message pattern in place of a file")
        ->type_name("TEXT")
        ->allow_extra_args(false);
    command
        .add_option("--language", language_,
                    "Language of the texts, by its name in the file or by its number")
        ->type_name("NAME");
    command
        .add_option("--encoding", encoding_,
                    "Encoding of a file that is neither UTF-8 nor UTF-16, as iconv names it")
        ->type_name("NAME");
    diagnostics_.addTo(command, "--diagnostics");
}

void MessageInput::read() {
    Diagnostics diagnostics(diagnostics_.policy());
    if (pattern_) {
        readPattern(diagnostics);
    } else if (file_) {
        catalogues_ = readCatalogues({*file_}, encoding_, diagnostics);
        checkIdentifiers(catalogues_, diagnostics);
        checkMessages(catalogues_, diagnostics);
    } else {
        throw CannotRun("name a file or a --pattern");
    }
    const auto errors = errorsAmong(diagnostics.take());
    hasErrors_ = !errors.empty();
    diagnostics_.write(errors);
    if (pattern_) {
        return;
    }
    try {
        selectTexts();
    } catch (const CannotRun&) {
        if (!hasErrors_) { // errors may have removed the message
            throw;
        }
    }
}

void MessageInput::readPattern(Diagnostics& diagnostics) {
    // Without a file, all positional words are arguments.
    if (name_) {
        arguments_.insert(arguments_.begin(), *name_);
    }
    if (file_) {
        arguments_.insert(arguments_.begin(), *file_);
    }
    if (validUtf8Length(*pattern_) < pattern_->size()) {
        throw CannotRun("the pattern is not UTF-8");
    }
    patternFile_ = std::make_unique<const SourceFile>("pattern", *pattern_);
    const Place whole{patternFile_.get(), 0, pattern_->size()};
    checkPattern(PatternTree(whole), diagnostics);
    texts_.push_back({"", whole, {}, true});
}

void MessageInput::selectTexts() {
    const MessageIndex index(catalogues_.front());
    std::optional<std::uint32_t> language;
    if (!language_.empty()) {
        language = index.language(language_);
    }
    if (name_) {
        addTexts(index.find(*name_), language);
        return;
    }
    for (const IndexedMessage& message : index.messages()) {
        addTexts(message, language);
    }
}

void MessageInput::addTexts(const IndexedMessage& message, std::optional<std::uint32_t> language) {
    const std::uint32_t first = language.value_or(lookedUpLanguage);
    const MessageText* const text = message.textIn(first);
    if (text != nullptr) {
        addText(message, *text);
    } else {
        texts_.push_back({describe(*message.head), std::nullopt, {}, first == lookedUpLanguage});
    }
    if (language) {
        return;
    }
    for (const MessageText* const other : message.texts) {
        if (other != text) {
            addText(message, *other);
        }
    }
}

void MessageInput::addText(const IndexedMessage& message, const MessageText& text) {
    texts_.push_back({describe(*message.head) + ", " + std::string(text.languageName.text()),
                      text.pattern, message.parameters, text.language == lookedUpLanguage});
}

} // namespace zem::msglib::tool
