#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zem::msglib::tool {

/// A file that the user wrote, decoded, which diagnostics point into.
///
/// Whatever the file's own form is, its text is UTF-8 with LF line ends, so an offset into it is
/// all that a position needs. Views of the text stay valid as long as the object, also when it is
/// moved to by way of a pointer; it is neither copied nor moved itself, since `Place` points to it.
class SourceFile {
public:
    /// @param name    as the user gave it, for diagnostics
    /// @param text    valid UTF-8
    /// @param number  the rank among the files of one run, by which diagnostics are ordered
    SourceFile(std::string name, std::string text, std::size_t number = 0);
    SourceFile(const SourceFile&) = delete;
    SourceFile& operator=(const SourceFile&) = delete;

    const std::string& name() const noexcept { return name_; }
    std::string_view text() const noexcept { return text_; }
    std::size_t number() const noexcept { return number_; }

    /// Line and column of a character, both from 1. Columns count characters, a tab as one.
    struct Position {
        std::size_t line;
        std::size_t column;
    };

    /// Returns the position of the character at `offset`, which is at most the text's size.
    Position positionOf(std::size_t offset) const noexcept;

    /// Returns the offset at which the line with `offset` begins.
    std::size_t lineStart(std::size_t offset) const noexcept;

    /// Returns the line with `offset`, without its line end.
    std::string_view lineAt(std::size_t offset) const noexcept;

private:
    std::size_t lineIndex(std::size_t offset) const noexcept;
    std::size_t charactersBefore(std::size_t offset) const noexcept;

    std::string name_;
    std::string text_;
    std::size_t number_;
    std::vector<std::size_t> lineStarts_;
    std::vector<std::size_t>
        characters_; // before each block, so that columns of long lines are fast
};

/// Some bytes of a source file, such as those that a diagnostic is about.
///
/// The file must outlive it.
struct Place {
    const SourceFile* file = nullptr;
    std::size_t offset = 0; ///< into the file's text
    std::size_t length = 0; ///< in bytes; 0 means a point between characters

    std::size_t end() const noexcept { return offset + length; }
    std::string_view text() const noexcept { return file->text().substr(offset, length); }
};

} // namespace zem::msglib::tool
