#pragma once

#include "tool/text/SourceFile.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace zem::msglib::tool {

/// A token of a message text file, outside of the texts of messages.
///
///     word     characters other than blanks, line ends, control characters and those below
///     symbol   one of = : ( ) + ,
///     other    a control character
///     end      the end of the file
///
/// Blanks, line ends and comments, which go from ";" to the end of the line, separate tokens.
struct Token {
    enum class Kind { word, symbol, other, end };

    Kind kind;
    Place place;

    /// Returns whether this is the symbol `character`.
    bool is(char character) const noexcept {
        return kind == Kind::symbol && place.file->text()[place.offset] == character;
    }
    std::string_view text() const noexcept { return place.text(); }
};

/// Reads tokens, and whole lines on request.
class HeadLexer {
public:
    /// @param file  must outlive the reader
    explicit HeadLexer(const SourceFile& file) noexcept : file_(file) {}

    /// Returns the next token without taking it.
    Token peek() const noexcept { return tokenAfter(position_); }

    /// Returns the token after the next one.
    Token peekSecond() const noexcept { return tokenAfter(peek().place.end()); }

    /// Takes the next token, and with it the comments before it.
    Token take();

    /// Takes the rest of the line after the last token that was taken. Returns what is on it
    /// besides blanks and a comment; empty in a correct file.
    Place takeRestOfLine();

    /// Takes the next line as it is, without its line end.
    Place takeLine() noexcept;

    /// Goes back to `place`, which must be the start of a line.
    void goTo(std::size_t offset) noexcept { position_ = offset; }

    bool isAtEnd() const noexcept { return position_ == file_.text().size(); }
    std::size_t position() const noexcept { return position_; }

    /// Returns the comments that were read since the last call.
    std::vector<Place> takeComments() noexcept;

private:
    Token tokenAfter(std::size_t position) const noexcept;
    std::size_t lineEnd(std::size_t position) const noexcept;
    void collectComments(std::size_t begin, std::size_t end);

    const SourceFile& file_;
    std::size_t position_ = 0;
    std::vector<Place> comments_;
};

} // namespace zem::msglib::tool
