#include "tool/catalogue/CatalogueReader.h"

#include "tool/catalogue/HeadLexer.h"
#include "tool/catalogue/HeadValues.h"
#include "tool/catalogue/Identifiers.h"
#include "tool/catalogue/TextReader.h"

#include <algorithm>
#include <optional>
#include <utility>

// A decoded message text file goes in, its messages come out. Outside of texts, a file is a
// sequence of statements `keyword = value`, whose tokens may be on different lines. `HeadLexer`
// splits them, `HeadValues` reads their values, and a head collects them until `Language` starts a
// text. A text is all lines up to a ".", which `TextReader` reads. One error must not hide the
// next. So after an error, the reader continues at the next line that begins with a statement.

namespace zem::msglib::tool {

namespace {

class CatalogueReader {
public:
    CatalogueReader(const SourceFile& source, Diagnostics& diagnostics)
        : source_(source),
          diagnostics_(diagnostics),
          lexer_(source),
          values_(lexer_, diagnostics),
          identifiers_(diagnostics) {}

    std::vector<Message> read();

private:
    void readStatement();
    void readValue(const Token& keyword);
    bool startsStatement() const;
    void skipToStatement();

    void readMessageId(const Token& keyword);
    void readNamedValue(const Token& keyword, std::optional<NamedValue>& value,
                        const HeadValues::Kind& kind);
    void readSymbolicName(const Token& keyword);
    void readLanguage(const Token& keyword);
    void readNames(const Token& keyword, HeadValues::Kind& kind);
    void readMessageIdTypedef(const Token& keyword);
    void readOutputBase(const Token& keyword);

    void beginHead(const Token& keyword);
    void beginMessage();
    void endMessage(std::size_t end);
    MessageHead& openHead(const Token& keyword);
    void refuseMissingText();
    [[noreturn]] void abandon(Place place, const std::string& words) {
        tool::abandon(diagnostics_, place, words);
    }

    const SourceFile& source_;
    Diagnostics& diagnostics_;
    HeadLexer lexer_;
    HeadValues values_;
    Identifiers identifiers_;
    std::vector<Message> messages_;
    std::optional<MessageHead> head_; ///< of a message that has no text yet
    bool isRecovering_ = false;       ///< whether an error may have been in a `MessageId`
    bool isInMessage_ = false;        ///< whether more texts may follow for the last of `messages_`
};

std::vector<Message> CatalogueReader::read() {
    while (lexer_.peek().kind != Token::Kind::end) {
        try {
            readStatement();
        } catch (const Abandoned&) {
            skipToStatement();
        }
    }
    lexer_.take();
    if (messages_.empty() && !head_ && !isRecovering_) {
        diagnostics_.report(rules::fileSyntax, {&source_, 0, 0}, "no message in the file");
    }
    refuseMissingText();
    endMessage(source_.text().size());
    reportTrailingDirectives(lexer_.takeComments(), diagnostics_);
    return std::move(messages_);
}

void CatalogueReader::readStatement() {
    const Token keyword = lexer_.take();
    if (keyword.kind != Token::Kind::word || !isKeyword(keyword.text())) {
        abandon(keyword.place, "a keyword such as MessageId is expected here");
    }
    if (!lexer_.peek().is('=')) {
        abandon(keyword.place, std::string(keyword.text()) + " needs a \"=\" and a value");
    }
    lexer_.take();
    readValue(keyword);
}

void CatalogueReader::readValue(const Token& keyword) {
    const auto is = [&](std::string_view name) { return equalInAnyCase(keyword.text(), name); };
    if (is("MessageId")) {
        readMessageId(keyword);
    } else if (is("Severity")) {
        readNamedValue(keyword, openHead(keyword).severity, values_.severities);
    } else if (is("Facility")) {
        readNamedValue(keyword, openHead(keyword).facility, values_.facilities);
    } else if (is("SymbolicName")) {
        readSymbolicName(keyword);
    } else if (is("Language")) {
        readLanguage(keyword);
    } else if (is("SeverityNames")) {
        readNames(keyword, values_.severities);
    } else if (is("FacilityNames")) {
        readNames(keyword, values_.facilities);
    } else if (is("LanguageNames")) {
        readNames(keyword, values_.languages);
    } else if (is("MessageIdTypedef")) {
        readMessageIdTypedef(keyword);
    } else {
        readOutputBase(keyword);
    }
}

/// Returns whether the line at the lexer's position begins with a statement.
bool CatalogueReader::startsStatement() const {
    const std::string_view line = source_.lineAt(lexer_.position());
    const std::size_t first = line.find_first_not_of(" \t\f\v");
    // Looking at the next token here would read the same lines of comments again and again.
    return first != std::string_view::npos && line[first] != ';' &&
           isKeyword(lexer_.peek().text()) && lexer_.peekSecond().is('=');
}

/// Continues after an error.
void CatalogueReader::skipToStatement() {
    if (head_) {
        head_->isBroken = true;
    }
    isRecovering_ = !head_;
    lexer_.takeRestOfLine();
    while (!lexer_.isAtEnd() && !startsStatement()) {
        lexer_.takeLine();
    }
}

/// No number means one more than the last, "+n" means n more.
void CatalogueReader::readMessageId(const Token& keyword) {
    isRecovering_ = false;
    beginHead(keyword);
    const Token value = lexer_.peek();
    head_->isRelative = value.is('+');
    if (head_->isRelative) {
        lexer_.take();
    } else if (value.kind != Token::Kind::word || lexer_.peekSecond().is('=')) {
        head_->isRelative = true;
        head_->value = 1;
        return;
    }
    head_->number = lexer_.peek().place;
    head_->value = values_.readNumber(keyword);
}

void CatalogueReader::readNamedValue(const Token& keyword, std::optional<NamedValue>& value,
                                     const HeadValues::Kind& kind) {
    if (value) {
        abandon(keyword.place, "the message already has a " + std::string(kind.what));
    }
    value = values_.readName(keyword, kind);
    head_->isBroken = head_->isBroken || !value;
}

void CatalogueReader::readSymbolicName(const Token& keyword) {
    MessageHead& head = openHead(keyword);
    if (head.symbol) {
        abandon(keyword.place, "the message already has a symbolic name");
    }
    const Token name = values_.readWord(keyword, "a name for the constant");
    if (!isIdentifier(name.text())) {
        abandon(name.place, "a symbolic name has letters, digits and underscores only, and no "
                            "digit at its start");
    }
    head.symbol = name.place;
}

/// Reads the language and the text, which begins on the next line.
void CatalogueReader::readLanguage(const Token& keyword) {
    if (isRecovering_) {
        openHead(keyword);
    }
    if (!head_ && !isInMessage_) {
        abandon(keyword.place, "Language belongs to a message, which begins with MessageId");
    }
    Place place = keyword.place;
    std::uint32_t language = 0;
    bool isKnown = false;
    if (source_.lineStart(lexer_.peek().place.offset) != source_.lineStart(place.offset)) {
        diagnostics_.report(rules::fileSyntax, place, "Language needs a name on the same line");
    } else if (const auto name = values_.readName(keyword, values_.languages)) {
        isKnown = true;
        place = name->place;
        language = name->number;
    }
    const Place rest = lexer_.takeRestOfLine();
    if (rest.length > 0) {
        diagnostics_.report(rules::fileSyntax, rest, "the text begins on the line after Language");
    }
    beginMessage();
    const Place pattern = readText(lexer_, place, values_.languages.names, diagnostics_);
    Message& message = messages_.back();
    message.texts.push_back({language, place, pattern});
    message.isIdentified = message.isIdentified && isKnown;
}

void CatalogueReader::readNames(const Token& keyword, HeadValues::Kind& kind) {
    if (head_) {
        abandon(keyword.place,
                std::string(keyword.text()) + " does not belong in the head of a message");
    }
    values_.readList(keyword, kind);
}

/// The type may be left out. The generated constants do not use it.
void CatalogueReader::readMessageIdTypedef(const Token& keyword) {
    if (head_) {
        abandon(keyword.place, "MessageIdTypedef does not belong in the head of a message");
    }
    if (lexer_.peek().kind == Token::Kind::word && !lexer_.peekSecond().is('=')) {
        lexer_.take();
    }
}

/// The number base of the constants in the header makes no difference to a compiler.
void CatalogueReader::readOutputBase(const Token& keyword) {
    const Place place = lexer_.peek().place;
    const std::uint32_t base = values_.readNumber(keyword);
    if (base != 10 && base != 16) {
        abandon(place, "OutputBase is 10 or 16");
    }
}

/// Ends the previous message, and begins a head.
void CatalogueReader::beginHead(const Token& keyword) {
    refuseMissingText();
    endMessage(keyword.place.offset);
    head_.emplace();
    head_->keyword = head_->number = keyword.place;
    head_->comments = lexer_.takeComments();
    head_->isBroken = std::exchange(isRecovering_, false);
}

/// Turns the head into a message if this is the message's first text.
void CatalogueReader::beginMessage() {
    const std::vector<Place> comments = lexer_.takeComments();
    if (head_) {
        MessageHead head = *std::exchange(head_, std::nullopt);
        const std::uint32_t id = identifiers_.next(head);
        messages_.push_back({head.keyword,
                             head.number,
                             head.symbol.value_or(Place()),
                             id,
                             !head.isBroken,
                             {},
                             std::move(head.comments)});
        isInMessage_ = true;
    }
    auto& all = messages_.back().comments;
    all.insert(all.end(), comments.begin(), comments.end());
}

void CatalogueReader::endMessage(std::size_t end) {
    if (std::exchange(isInMessage_, false)) {
        finishMessage(messages_.back(), end, diagnostics_);
    }
}

/// Returns the head that a statement belongs to. After an error that may have been in its
/// MessageId, the statement begins a head itself.
MessageHead& CatalogueReader::openHead(const Token& keyword) {
    if (!head_ && isRecovering_) {
        beginHead(keyword);
    }
    if (!head_) {
        abandon(keyword.place,
                std::string(keyword.text()) + " belongs between MessageId and Language");
    }
    return *head_;
}

void CatalogueReader::refuseMissingText() {
    if (head_ && !head_->isBroken) {
        diagnostics_.report(rules::fileSyntax, head_->keyword,
                            "the message has no text: Language is missing");
    }
    head_.reset();
}

} // namespace

Catalogue readCatalogue(ReadSource source, Diagnostics& diagnostics) {
    std::vector<Message> messages;
    if (source.isWhole) {
        messages = CatalogueReader(*source.file, diagnostics).read();
    }
    return {std::move(source.file), std::move(messages)};
}

std::vector<Catalogue> readCatalogues(const std::vector<std::string>& paths,
                                      const std::string& encoding, Diagnostics& diagnostics) {
    std::vector<Catalogue> catalogues;
    for (const std::string& path : paths) {
        ReadSource source = readSource(path, encoding, catalogues.size(), diagnostics);
        catalogues.push_back(readCatalogue(std::move(source), diagnostics));
    }
    return catalogues;
}

} // namespace zem::msglib::tool
