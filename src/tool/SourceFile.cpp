#include "SourceFile.h"

#include "Unicode.h"

#include <algorithm>
#include <utility>

namespace zem::msglib::tool {

SourceFile::SourceFile(std::string name, std::string text, std::size_t number)
    : name_(std::move(name)),
      text_(std::move(text)),
      number_(number),
      lineStarts_{0} {
    for (std::size_t end = text_.find('\n'); end != std::string::npos;
         end = text_.find('\n', end + 1)) {
        lineStarts_.push_back(end + 1);
    }
}

SourceFile::Position SourceFile::positionOf(std::size_t offset) const noexcept {
    const std::size_t index = lineIndex(offset);
    const std::size_t start = lineStarts_[index];
    return {index + 1, characterCount(text().substr(start, offset - start)) + 1};
}

std::size_t SourceFile::lineStart(std::size_t offset) const noexcept {
    return lineStarts_[lineIndex(offset)];
}

std::string_view SourceFile::lineAt(std::size_t offset) const noexcept {
    const std::size_t start = lineStart(offset);
    return text().substr(start, std::min(text_.find('\n', start), text_.size()) - start);
}

std::size_t SourceFile::lineIndex(std::size_t offset) const noexcept {
    const auto next = std::upper_bound(lineStarts_.begin(), lineStarts_.end(), offset);
    return static_cast<std::size_t>(next - lineStarts_.begin()) - 1;
}

} // namespace zem::msglib::tool
