#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zem::msglib::tool {

/// The decoded content of a file that the user wrote. Diagnostics refer to it.
///
/// The text is always UTF-8 with LF line ends, so an offset into it is enough for a position. Views
/// of the text are valid as long as the object. The object can neither be copied nor moved, since
/// `Place` points to it.
class SourceFile {
public:
    /// @param name    the name that the user wrote, for diagnostics
    /// @param text    valid UTF-8
    /// @param number  the position among the files of one run; orders diagnostics
    SourceFile(std::string name, std::string text, std::size_t number = 0);
    SourceFile(const SourceFile&) = delete;
    SourceFile& operator=(const SourceFile&) = delete;

    const std::string& name() const noexcept { return name_; }
    std::string_view text() const noexcept { return text_; }
    std::size_t number() const noexcept { return number_; }

    /// Line and column of a character, both counted from 1. Columns count characters; a tab is one.
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
        characters_; // before each block, so columns of long lines are found fast
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
