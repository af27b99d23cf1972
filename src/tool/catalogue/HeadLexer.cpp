#include "tool/catalogue/HeadLexer.h"

#include <algorithm>
#include <utility>

// A text goes in, its tokens come out one by one, without the blanks, line ends and comments
// between them. Comments are collected, since they may be instructions for the next message.

namespace zem::msglib::tool {

namespace {

constexpr std::string_view symbols = "=:()+,";
constexpr std::string_view blanks = " \t\f\v";

bool isOneOf(char byte, std::string_view set) noexcept {
    return set.find(byte) != std::string_view::npos;
}

bool isControl(char byte) noexcept {
    return static_cast<unsigned char>(byte) < 0x20 || byte == 0x7F;
}

bool isWord(char byte) noexcept {
    return !isControl(byte) && byte != ' ' && byte != ';' && !isOneOf(byte, symbols);
}

} // namespace

Token HeadLexer::take() {
    const Token token = peek();
    collectComments(position_, token.place.offset);
    position_ = token.place.end();
    return token;
}

Place HeadLexer::takeRestOfLine() {
    const std::size_t end = lineEnd(position_);
    const std::string_view text = file_.text().substr(0, end);
    const std::size_t comment = std::min(text.find(';', position_), end);
    std::size_t begin = position_;
    std::size_t last = comment;
    while (begin < last && isOneOf(text[begin], blanks)) {
        ++begin;
    }
    while (begin < last && isOneOf(text[last - 1], blanks)) {
        --last;
    }
    collectComments(comment, end);
    position_ = std::min(end + 1, file_.text().size());
    return {&file_, begin, last - begin};
}

Place HeadLexer::takeLine() noexcept {
    const std::size_t begin = position_;
    const std::size_t end = lineEnd(begin);
    position_ = std::min(end + 1, file_.text().size());
    return {&file_, begin, end - begin};
}

std::vector<Place> HeadLexer::takeComments() noexcept {
    return std::exchange(comments_, {});
}

Token HeadLexer::tokenAfter(std::size_t position) const noexcept {
    const std::string_view text = file_.text();
    while (position < text.size() &&
           (isOneOf(text[position], blanks) || text[position] == '\n' || text[position] == ';')) {
        position = text[position] == ';' ? lineEnd(position) : position + 1;
    }
    if (position == text.size()) {
        return {Token::Kind::end, {&file_, position, 0}};
    }
    if (!isWord(text[position])) {
        const bool isSymbol = isOneOf(text[position], symbols);
        return {isSymbol ? Token::Kind::symbol : Token::Kind::other, {&file_, position, 1}};
    }
    std::size_t end = position;
    while (end < text.size() && isWord(text[end])) {
        ++end;
    }
    return {Token::Kind::word, {&file_, position, end - position}};
}

/// Returns where the line with `position` ends, without its line end.
std::size_t HeadLexer::lineEnd(std::size_t position) const noexcept {
    return std::min(file_.text().find('\n', position), file_.text().size());
}

/// Keeps the comments between two tokens.
void HeadLexer::collectComments(std::size_t begin, std::size_t end) {
    const std::string_view text = file_.text().substr(0, end);
    for (std::size_t start = text.find(';', begin); start < end; start = text.find(';', start)) {
        const std::size_t lineEnd = std::min(text.find('\n', start), end);
        comments_.push_back({&file_, start, lineEnd - start});
        start = lineEnd;
    }
}

} // namespace zem::msglib::tool
