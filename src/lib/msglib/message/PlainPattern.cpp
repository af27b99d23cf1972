#include "message/PlainPattern.h"

#include "base/Extraction.h"
#include "message/StaticText.h"

namespace zem::msglib {

namespace {

// Reads a segment without quotes and braces; it ends at a comma or at the closing brace.
std::string_view readSegment(std::string_view pattern, std::size_t& position) noexcept {
    const std::size_t begin = position;
    position = findSyntax(pattern, position, ',');
    return pattern.substr(begin, position - begin);
}

} // namespace

std::size_t readPlainPlaceholder(std::string_view pattern, std::size_t position,
                                 PlainPlaceholder& placeholder) noexcept {
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
    switch (placeholder.style) {
    case PlaceholderStyle::CustomNumber:
    case PlaceholderStyle::CustomDate:
    case PlaceholderStyle::Choice: return std::string_view::npos;
    default: return position + 1;
    }
}

bool isPlain(std::string_view pattern) noexcept {
    std::size_t position = 0;
    for (;;) {
        position = scanStatic(pattern, position, [](std::string_view) {});
        if (position == pattern.size()) {
            return true;
        }
        PlainPlaceholder placeholder;
        position = readPlainPlaceholder(pattern, position, placeholder);
        if (position == std::string_view::npos) {
            return false;
        }
    }
}

} // namespace zem::msglib
