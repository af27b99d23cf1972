#include "tool/text/Strings.h"

#include <algorithm>

namespace zem::msglib::tool {

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

std::string_view trimmed(std::string_view text) noexcept {
    constexpr std::string_view blanks = " \t\n\v\f\r";
    const std::size_t begin = std::min(text.find_first_not_of(blanks), text.size());
    return text.substr(begin, text.find_last_not_of(blanks) + 1 - begin);
}

} // namespace zem::msglib::tool
