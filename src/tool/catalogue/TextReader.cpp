#include "tool/catalogue/TextReader.h"

#include "tool/catalogue/CommentDirectives.h"
#include "tool/text/Unicode.h"

#include <algorithm>
#include <set>
#include <string_view>

// The lines after `Language` go in, the place of a text comes out. Each line is tested for the end
// of the text, and for signs that the end is missing. When a message is complete, the directives in
// its comments are applied to all of its texts, and their lengths are checked.

namespace zem::msglib::tool {

namespace {

// The length of a table entry is a multiple of 4, has 16 bits, and includes the entry's header and
// a terminator.
constexpr std::size_t highestTextUnits = (65532 - 4) / 2 - 1;

constexpr std::string_view finalLine = ".";

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\f\v";
    const std::size_t begin = std::min(text.find_first_not_of(blanks), text.size());
    return text.substr(begin, text.find_last_not_of(blanks) + 1 - begin);
}

/// Returns whether a line of a text looks like the start of the next message or text.
bool startsNextText(std::string_view line, const DeclaredNames& languages) {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) {
        return false;
    }
    const std::string_view keyword = trimmed(line.substr(0, equals));
    const std::string_view value = trimmed(line.substr(equals + 1));
    if (equalInAnyCase(keyword, "MessageId")) {
        return value.empty() || value.front() == '+' ||
               (value.front() >= '0' && value.front() <= '9');
    }
    return equalInAnyCase(keyword, "Language") && languages.find(value) != nullptr;
}

/// Takes a line of a text, and returns whether the text ends before it.
bool takesEnd(HeadLexer& lexer, const Place& languageName, const DeclaredNames& languages,
              Diagnostics& diagnostics) {
    if (lexer.isAtEnd()) {
        diagnostics.report(rules::fileSyntax, languageName,
                           "this text has no final \".\" on a line of its own");
        return true;
    }
    const Place line = lexer.takeLine();
    if (line.text() == finalLine) {
        return true;
    }
    if (trimmed(line.text()) == finalLine) {
        diagnostics.report(rules::fileSyntax, line,
                           "blanks beside a final \".\" make it part of the text");
        return true;
    }
    if (startsNextText(line.text(), languages)) {
        lexer.goTo(line.offset);
        diagnostics.report(rules::fileSyntax, languageName,
                           "this text has no final \".\" before the next one",
                           {{"which begins here", line}});
        return true;
    }
    return false;
}

/// Applies one directive of a message, and returns whether it asks for no line end.
bool obey(const CommentDirective& directive, const Place& message, std::set<const Rule*>& allowed,
          Diagnostics& diagnostics) {
    if (directive.verb.text() == "no-line-end" && directive.arguments.empty()) {
        return true;
    }
    if (directive.verb.text() != "allow" || directive.arguments.empty()) {
        diagnostics.report(rules::fileSyntax, directive.verb,
                           R"(a comment can ask for "allow RULE" or "no-line-end")");
        return false;
    }
    for (const Place& name : directive.arguments) {
        const Rule* const rule = findRule(name.text());
        if (rule == nullptr || !rule->mayBeAllowed) {
            diagnostics.report(rules::unusedAllow, name,
                               rule == nullptr ? "there is no such rule"
                                               : "this rule cannot be allowed");
        } else if (!allowed.insert(rule).second) {
            diagnostics.report(rules::unusedAllow, name, "the message already allows this rule");
        } else {
            diagnostics.allow(*rule, name, message.offset, message.end());
        }
    }
    return false;
}

void checkLength(const MessageText& text, Diagnostics& diagnostics) {
    const std::string_view bytes = text.pattern.text();
    const auto lineEnds = std::count(bytes.begin(), bytes.end(), '\n'); // two units each
    const std::size_t units = utf16UnitCount(bytes) + static_cast<std::size_t>(lineEnds);
    if (bytes.empty()) {
        diagnostics.report(rules::fileSyntax, text.languageName, "the text is empty");
    } else if (units > highestTextUnits) {
        diagnostics.report(rules::fileSyntax, text.languageName,
                           "the text has " + std::to_string(units) +
                               " UTF-16 units, more than the " + std::to_string(highestTextUnits) +
                               " that an entry of a table holds");
    }
}

} // namespace

Place readText(HeadLexer& lexer, const Place& languageName, const DeclaredNames& languages,
               Diagnostics& diagnostics) {
    const std::size_t begin = lexer.position();
    std::size_t end = begin;
    while (!takesEnd(lexer, languageName, languages, diagnostics)) {
        end = lexer.position();
    }
    return {languageName.file, begin, end - begin};
}

void finishMessage(Message& message, std::size_t end, Diagnostics& diagnostics) {
    const std::size_t begin =
        message.comments.empty() ? message.head.offset : message.comments.front().offset;
    const Place whole{message.head.file, begin, end - begin};
    std::set<const Rule*> allowed;
    bool hasLineEnd = true;
    for (const Place& comment : message.comments) {
        const CommentDirective directive = readDirective(comment);
        if (directive.verb.length > 0 && obey(directive, whole, allowed, diagnostics)) {
            hasLineEnd = false;
        }
    }
    for (MessageText& text : message.texts) {
        if (!hasLineEnd && text.pattern.length > 0) {
            --text.pattern.length;
        }
        checkLength(text, diagnostics);
    }
}

void reportTrailingDirectives(const std::vector<Place>& comments, Diagnostics& diagnostics) {
    for (const Place& comment : comments) {
        const CommentDirective directive = readDirective(comment);
        if (directive.verb.length > 0) {
            diagnostics.report(rules::unusedAllow, directive.verb, "no message follows");
        } else if (isAnnotation(comment)) {
            diagnostics.report(rules::argumentAnnotation, comment, "no message follows");
        }
    }
}

} // namespace zem::msglib::tool
