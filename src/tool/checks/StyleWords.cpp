#include "tool/checks/StyleWords.h"

#include "tool/text/Names.h"
#include "tool/text/Words.h"

#include <algorithm>

namespace zem::msglib::tool {

namespace {

struct StyleWord {
    std::string_view word;
    std::string_view type;
};

constexpr StyleWord styleWords[] = {
    {"integer", "number"}, {"currency", "number"}, {"percent", "number"}, {"short", "date"},
    {"medium", "date"},    {"long", "date"},       {"full", "date"},
};

constexpr std::size_t longestStyle = 64; // with blanks

} // namespace

std::string_view typeOfStyleWord(std::string_view word) noexcept {
    const auto* const found =
        std::find_if(std::begin(styleWords), std::end(styleWords),
                     [word](const StyleWord& candidate) { return candidate.word == word; });
    return found == std::end(styleWords) ? std::string_view() : found->type;
}

std::string misreadStyleWord(const Placeholder& placeholder) {
    const bool isPattern = placeholder.kind == PlaceholderKind::DecimalStyle ||
                           placeholder.kind == PlaceholderKind::DateStyle;
    if (!isPattern || placeholder.style.size() > longestStyle) {
        return {};
    }
    std::string word = lowerCase(withoutBlanks(placeholder.style.text()));
    return typeOfStyleWord(word).empty() ? std::string() : word;
}

} // namespace zem::msglib::tool
