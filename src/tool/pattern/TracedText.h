#pragma once

#include "tool/text/SourceFile.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace zem::msglib::tool {

/// A text from the library's readers, with the place of each of its bytes in the source file. It is
/// a part of the file, or joined from several parts if quoting was resolved.
///
/// A copy is cheap and shares the joined text. The file must outlive it.
class TracedText {
public:
    /// The text that the author wrote at a place.
    explicit TracedText(const Place& place) : text_(place.text()), file_(place.file) {}

    std::string_view text() const noexcept { return text_; }
    std::size_t size() const noexcept { return text_.size(); }
    const SourceFile& file() const noexcept { return *file_; }

    /// Returns a part of this text.
    ///
    /// @param part  a view into `text()`
    TracedText part(std::string_view part) const;

    /// Returns the place of the bytes from `begin` to `end` of this text in the file, from the
    /// first character to the last, in logarithmic time.
    Place place(std::size_t begin, std::size_t end) const;

    /// Returns the place of a view into `text()` in the file.
    Place placeOf(std::string_view part) const;

    /// Returns the place of the whole text in the file.
    Place place() const { return place(0, size()); }

    /// Returns the position of the first byte that is at `offset` of the file or after it; the size
    /// of the text if there is none. It takes logarithmic time.
    std::size_t find(std::size_t offset) const;

private:
    friend class TextTracer;

    struct Run {
        std::size_t position; // in the joined text
        std::size_t offset;   // in the file
    };
    struct Joined {
        std::string text;
        std::vector<Run> runs; // ascending by both; the first one begins at position 0
    };

    std::size_t positionInJoined() const noexcept;
    std::size_t offsetOf(std::size_t position) const;

    std::string_view text_;
    const SourceFile* file_;
    std::shared_ptr<const Joined> joined_; // null for a part of the file
};

/// A sink for the library's readers that joins the pieces of a text and keeps their places.
class TextTracer {
public:
    /// @param source    the text that is read; all pieces must be views into it
    /// @param position  where reading begins; the place of an empty text
    TextTracer(const TracedText& source, std::size_t position)
        : source_(source),
          first_(source.text().substr(position, 0)) {}

    void operator()(std::string_view piece);

    /// Returns the text of all pieces. To be called once.
    TracedText take();

private:
    void join(std::string_view piece);

    const TracedText& source_;
    std::string_view first_; // the piece, while there is only one
    std::shared_ptr<TracedText::Joined> joined_;
};

} // namespace zem::msglib::tool
