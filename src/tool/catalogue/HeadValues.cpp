#include "tool/catalogue/HeadValues.h"

#include <algorithm>
#include <utility>

// Tokens go in, values come out: numbers, words, and numbers that are declared by name. A list of
// names is read entry by entry into the declared names of its kind. Every error is reported and
// ends the statement with `Abandoned`.

namespace zem::msglib::tool {

namespace {

constexpr std::string_view keywords[] = {
    "MessageId",     "Severity",      "Facility",      "SymbolicName",     "Language",
    "SeverityNames", "FacilityNames", "LanguageNames", "MessageIdTypedef", "OutputBase"};

bool isDigit(char byte) noexcept {
    return byte >= '0' && byte <= '9';
}

/// Reads a decimal number, or a hexadecimal one after 0x, of 32 bits.
std::optional<std::uint32_t> numberOf(std::string_view text) {
    const bool isHexadecimal = text.size() > 2 && equalInAnyCase(text.substr(0, 2), "0x");
    const std::string_view digits =
        std::string_view("0123456789abcdef").substr(0, isHexadecimal ? 16 : 10);
    std::uint64_t number = 0;
    for (const char byte : lowerCase(text.substr(isHexadecimal ? 2 : 0))) {
        const std::size_t value = digits.find(byte);
        if (value == std::string_view::npos) {
            return std::nullopt;
        }
        number = number * digits.size() + value;
        if (number > UINT32_MAX) {
            return std::nullopt;
        }
    }
    return static_cast<std::uint32_t>(number);
}

/// Returns whether a number has a different value if a leading 0 means octal.
bool hasOctalReading(std::string_view text) noexcept {
    const std::size_t zeros = std::min(text.find_first_not_of('0'), text.size());
    const std::string_view digits = text.substr(zeros);
    const bool isSmall = digits.empty() || (digits.size() == 1 && digits.front() < '8');
    return zeros > 0 && !isSmall && std::all_of(digits.begin(), digits.end(), isDigit);
}

std::string quoted(const Token& token) {
    return std::string(token.text());
}

} // namespace

void abandon(Diagnostics& diagnostics, Place place, std::string words) {
    diagnostics.report(rules::fileSyntax, place, std::move(words));
    throw Abandoned();
}

bool isKeyword(std::string_view word) noexcept {
    return std::any_of(std::begin(keywords), std::end(keywords),
                       [word](std::string_view keyword) { return equalInAnyCase(keyword, word); });
}

void HeadValues::readList(const Token& keyword, Kind& kind) {
    const Token open = lexer_.peek();
    if (!open.is('(')) {
        abandon(diagnostics_, keyword.place,
                quoted(keyword) + " needs a list in parentheses: (Name=number)");
    }
    lexer_.take();
    while (!lexer_.peek().is(')')) {
        readEntry(kind, open);
    }
    lexer_.take();
}

void HeadValues::readEntry(Kind& kind, const Token& open) {
    const Token name = lexer_.take();
    const bool isWord = name.kind == Token::Kind::word;
    if (name.kind == Token::Kind::end || (isWord && isKeyword(name.text()))) {
        abandonList(open, name);
    }
    if (!isWord || !lexer_.peek().is('=')) {
        abandon(diagnostics_, name.place,
                "a list has entries of the form Name=number, with blanks between them");
    }
    lexer_.take();
    const Token number = lexer_.peek();
    const std::uint32_t value = readNumber(name);
    declare(kind, name, number, value);
    if (lexer_.peek().is(':')) {
        lexer_.take();
        readWord(name, "a name after the \":\"");
    } else if (&kind == &languages) {
        abandon(diagnostics_, number.place,
                "a language needs a number and the name of a file, as in English=0x409:MSG00409");
    }
}

void HeadValues::declare(Kind& kind, const Token& name, const Token& number, std::uint32_t value) {
    if (value >> kind.bits != 0) {
        diagnostics_.report(rules::fileSyntax, number.place,
                            "the number is too high: a " + std::string(kind.what) + " has " +
                                std::to_string(kind.bits) + " bits, up to " +
                                std::to_string((1U << kind.bits) - 1));
        value = 0;
    }
    const auto* const known = kind.names.find(name.text());
    if (known != nullptr && known->name != name.text() && known->number != value) {
        diagnostics_.report(rules::ambiguousHeader, name.place,
                            "this name and " + known->name +
                                " differ only in upper and lower case: some programs read them "
                                "as the same name");
    }
    kind.names.declare(name.text(), value);
}

/// Reports a list without an end. The reader continues with the line of `next`.
void HeadValues::abandonList(const Token& open, const Token& next) {
    const std::size_t line = next.place.file->lineStart(next.place.offset);
    if (line > open.place.offset) {
        lexer_.goTo(line - 1);
    }
    abandon(diagnostics_, open.place, "the list has no closing parenthesis");
}

std::optional<NamedValue> HeadValues::readName(const Token& keyword, const Kind& kind) {
    const Token name = readWord(keyword, "a name that " + std::string(kind.list) + " declares");
    const auto* const declared = kind.names.find(name.text());
    if (declared != nullptr) {
        return NamedValue{name.place, declared->number};
    }
    const auto meant = kind.names.nearestTo(name.text());
    const std::string example = std::string(kind.list) + "=(" + quoted(name) +
                                (&kind == &languages ? "=number:file)" : "=number)");
    diagnostics_.report(rules::fileSyntax, name.place,
                        "there is no " + std::string(kind.what) + " " + quoted(name),
                        {{meant ? "did you mean " + std::string(*meant) + "?"
                                : "declare it before the message: " + example}});
    return std::nullopt;
}

Token HeadValues::readWord(const Token& keyword, const std::string& wanted) {
    if (lexer_.peek().kind != Token::Kind::word || lexer_.peekSecond().is('=')) {
        abandon(diagnostics_, keyword.place, quoted(keyword) + " needs " + wanted);
    }
    return lexer_.take();
}

std::uint32_t HeadValues::readNumber(const Token& keyword) {
    const Token word = readWord(keyword, "a number, such as 17 or 0x11");
    const auto number = numberOf(word.text());
    if (!number) {
        abandon(diagnostics_, word.place, "not a number of 32 bits, such as 17 or 0x11");
    }
    if (hasOctalReading(word.text())) {
        diagnostics_.report(
            rules::ambiguousHeader, word.place,
            "a number with a leading 0: octal for some programs, decimal for others",
            {{"leave out the 0, or write the number as hexadecimal"}});
        throw Abandoned();
    }
    return *number;
}

} // namespace zem::msglib::tool
