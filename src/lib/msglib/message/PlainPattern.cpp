#include "message/PlainPattern.h"

#include "base/Extraction.h"

namespace zem::msglib {

namespace {

// Reads a segment without quotes and braces; it ends at a comma or at the closing brace.
std::string_view readSegment(std::string_view pattern, std::size_t& position) noexcept {
    const std::size_t begin = position;
    position = findSyntax(pattern, position, ',');
    return pattern.substr(begin, position - begin);
}

bool needsNothingCompiled(PlaceholderStyle style) noexcept {
    return style != PlaceholderStyle::CustomNumber && style != PlaceholderStyle::CustomDate &&
           style != PlaceholderStyle::Choice;
}

} // namespace

std::size_t readPlainPlaceholder(std::string_view pattern, std::size_t position,
                                 PlainPiece& placeholder) noexcept {
    if (!holdsAt(pattern, position, '{')) {
        return std::string_view::npos;
    }
    const std::size_t digits = readDigits(pattern, position + 1, placeholder.index);
    position += 1 + digits;
    if (digits == 0) {
        return std::string_view::npos;
    }
    if (holdsAt(pattern, position, '}')) {
        return position + 1;
    }
    std::string_view type;
    std::string_view style;
    if (holdsAt(pattern, position, ',')) {
        type = readSegment(pattern, ++position);
    }
    if (holdsAt(pattern, position, ',')) {
        style = readSegment(pattern, ++position);
    }
    if (!holdsAt(pattern, position, '}')) {
        return std::string_view::npos;
    }
    placeholder.style = placeholderStyle(type, style);
    return needsNothingCompiled(placeholder.style) ? position + 1 : std::string_view::npos;
}

PlainPattern::PlainPattern(std::string_view pattern) : pattern_(pattern) {
    while (rest_ < pattern.size() && pieces_.size() + 2 <= usualPieces) {
        rest_ = readPieces(rest_, [this](const PlainPiece& piece) { pieces_.push_back(piece); });
    }
    std::size_t position = rest_;
    while (position < pattern.size()) {
        position = readPieces(position, [](const PlainPiece&) {});
    }
    isPlain_ = position == pattern.size();
}

} // namespace zem::msglib
