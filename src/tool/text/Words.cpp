#include "tool/text/Words.h"

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

std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const bool hasReturn = end < text.size() && end > 0 && text[end - 1] == '\r';
        lines.push_back(text.substr(0, end - (hasReturn ? 1 : 0)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

std::string_view withoutBlanks(std::string_view text) noexcept {
    constexpr std::string_view blanks = " \t\n\v\f\r";
    const std::size_t begin = std::min(text.find_first_not_of(blanks), text.size());
    return text.substr(begin, text.find_last_not_of(blanks) + 1 - begin);
}

} // namespace zem::msglib::tool
