#include "tool/text/SourceFile.h"

#include "tool/text/Unicode.h"

#include <algorithm>
#include <utility>

namespace zem::msglib::tool {

namespace {

constexpr std::size_t blockSize = 512;

} // namespace

SourceFile::SourceFile(std::string name, std::string text, std::size_t number)
    : name_(std::move(name)),
      text_(std::move(text)),
      number_(number),
      lineStarts_{0} {
    for (std::size_t end = text_.find('\n'); end != std::string::npos;
         end = text_.find('\n', end + 1)) {
        lineStarts_.push_back(end + 1);
    }
    std::size_t count = 0;
    for (std::size_t begin = 0; begin <= text_.size(); begin += blockSize) {
        characters_.push_back(count);
        count += characterCount(this->text().substr(begin, blockSize));
    }
}

SourceFile::Position SourceFile::positionOf(std::size_t offset) const noexcept {
    const std::size_t index = lineIndex(offset);
    const std::size_t start = lineStarts_[index];
    return {index + 1, charactersBefore(offset) - charactersBefore(start) + 1};
}

std::size_t SourceFile::charactersBefore(std::size_t offset) const noexcept {
    const std::size_t block = offset / blockSize;
    const std::size_t begin = block * blockSize;
    return characters_[block] + characterCount(text().substr(begin, offset - begin));
}

std::size_t SourceFile::lineStart(std::size_t offset) const noexcept {
    return lineStarts_[lineIndex(offset)];
}

std::string_view SourceFile::lineAt(std::size_t offset) const noexcept {
    const std::size_t index = lineIndex(offset);
    const std::size_t start = lineStarts_[index];
    const std::size_t end =
        index + 1 < lineStarts_.size() ? lineStarts_[index + 1] - 1 : text_.size();
    return text().substr(start, end - start);
}

std::size_t SourceFile::lineIndex(std::size_t offset) const noexcept {
    const auto next = std::upper_bound(lineStarts_.begin(), lineStarts_.end(), offset);
    return static_cast<std::size_t>(next - lineStarts_.begin()) - 1;
}

} // namespace zem::msglib::tool
