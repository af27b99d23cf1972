#include "tool/checks/StyleKeywords.h"

#include "tool/text/Names.h"
#include "tool/text/Strings.h"

#include <algorithm>

namespace zem::msglib::tool {

namespace {

struct StyleKeyword {
    std::string_view word;
    std::string_view type;
};

constexpr StyleKeyword styleKeywords[] = {
    {"integer", "number"}, {"currency", "number"}, {"percent", "number"}, {"short", "date"},
    {"medium", "date"},    {"long", "date"},       {"full", "date"},
};

constexpr std::size_t longestStyle = 64; // with blanks

} // namespace

std::string_view typeOfStyleKeyword(std::string_view word) noexcept {
    const auto* const found =
        std::find_if(std::begin(styleKeywords), std::end(styleKeywords),
                     [word](const StyleKeyword& candidate) { return candidate.word == word; });
    return found == std::end(styleKeywords) ? std::string_view() : found->type;
}

std::string misreadStyleKeyword(const Placeholder& placeholder) {
    const bool isPattern = placeholder.kind == PlaceholderKind::DecimalStyle ||
                           placeholder.kind == PlaceholderKind::DateStyle;
    if (!isPattern || placeholder.style.size() > longestStyle) {
        return {};
    }
    std::string word = lowerCase(trimmed(placeholder.style.text()));
    return typeOfStyleKeyword(word).empty() ? std::string() : word;
}

} // namespace zem::msglib::tool
