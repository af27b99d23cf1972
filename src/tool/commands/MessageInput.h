#pragma once

#include "tool/catalogue/Catalogue.h"
#include "tool/catalogue/MessageIndex.h"
#include "tool/commands/Command.h"
#include "tool/commands/DiagnosticOptions.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace zem::msglib::tool {

/// A text that a command works on.
struct InputText {
    std::string title; ///< as in `MSG_COPIED (0x40010002), English`; empty for a single pattern
    std::optional<Place> pattern; ///< nothing if the message has no text in the chosen language
    std::vector<Parameter> parameters; ///< what comments add about the arguments
    bool isLookedUp;                   ///< whether it is the text that programs show
};

/// The options and the input of commands that work on the messages of a file or on a pattern:
///
///     FILE [SYMBOL|ID] [ARGUMENT...] [--language NAME] [--encoding NAME]
///     --pattern TEXT [ARGUMENT...]
///
/// Errors in the file or the pattern are reported as `check` does, without warnings and notes.
class MessageInput {
public:
    /// Adds the options to a command; the object must live until it has run.
    ///
    /// @param takesArguments  whether arguments may follow
    void addTo(CLI::App& command, bool takesArguments);

    /// Reads and checks the file or the pattern, and writes the errors.
    ///
    /// @throws CannotRun if neither file nor pattern is given, if the file cannot be read, or if
    ///         there is no such message
    void read();

    /// Returns the texts that were read: those of the chosen message, or of all messages. The text
    /// in the language that is looked up comes first. Empty if the file has errors and nothing can
    /// be shown.
    const std::vector<InputText>& texts() const noexcept { return texts_; }

    /// Returns the arguments as they were written. If there are any, they belong to the first text.
    const std::vector<std::string>& arguments() const noexcept { return arguments_; }

    bool hasErrors() const noexcept { return hasErrors_; }

    const DiagnosticOptions& diagnostics() const noexcept { return diagnostics_; }

private:
    void readPattern(Diagnostics& diagnostics);
    void selectTexts();
    void addTexts(const IndexedMessage& message, std::optional<std::uint32_t> language);
    void addText(const IndexedMessage& message, const MessageText& text);

    std::optional<std::string> file_;
    std::optional<std::string> name_; ///< of a message
    std::vector<std::string> arguments_;
    std::optional<std::string> pattern_;
    std::string encoding_;
    std::string language_;
    DiagnosticOptions diagnostics_;

    std::vector<Catalogue> catalogues_;
    std::unique_ptr<const SourceFile> patternFile_;
    std::vector<InputText> texts_;
    bool hasErrors_ = false;
};

} // namespace zem::msglib::tool
