#include "tool/text/DisplayText.h"

#include "tool/text/Unicode.h"

#include <algorithm>

namespace zem::msglib::tool {

namespace {

constexpr std::size_t longestExcerpt = 40;

std::string excerpt(std::string_view text) {
    std::string result(text.substr(0, validUtf8Length(text.substr(0, longestExcerpt))));
    std::replace(result.begin(), result.end(), '\n', ' ');
    return result.size() < text.size() ? result + "…" : result;
}

} // namespace

std::string code(std::string_view text) {
    return '`' + excerpt(text) + '`';
}

std::string shown(std::string_view text) {
    return '"' + excerpt(text) + '"';
}

std::string visibleLine(std::string_view bytes) {
    std::string line;
    while (!bytes.empty()) {
        std::string_view valid = bytes.substr(0, validUtf8Length(bytes));
        bytes.remove_prefix(valid.size());
        while (!valid.empty()) {
            const std::string_view before = valid;
            const char32_t character = takeCharacter(valid);
            line += character == '\n'      ? "↵"
                    : isControl(character) ? "\uFFFD"
                                           : before.substr(0, before.size() - valid.size());
        }
        if (!bytes.empty()) {
            line += "\uFFFD";
            bytes.remove_prefix(1);
        }
    }
    return line;
}

std::string visible(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const std::string_view before = text;
        const char32_t character = takeCharacter(text);
        result += isControl(character) && character != '\t'
                      ? std::string_view("\uFFFD")
                      : before.substr(0, before.size() - text.size());
    }
    return result;
}

} // namespace zem::msglib::tool
