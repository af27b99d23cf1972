#include "tool/pattern/Spelling.h"

#include "tool/pattern/TextTrial.h"

#include <array>

namespace zem::msglib::tool {

namespace {

constexpr std::size_t mostApostrophes = 64;
constexpr std::size_t levels = 8; // deeper texts need too many

/// The numbers of apostrophes that are needed, by the number of choices around them.
using Counts = std::array<std::size_t, levels>;

/// Returns for each depth the least number of apostrophes that shows `wanted` if it replaces each
/// apostrophe in `text`; 0 if there is none.
Counts tryCounts(const std::string& text, const std::string& wanted) {
    Counts counts{};
    for (std::size_t depth = 0; depth < levels; ++depth) {
        for (std::size_t count = 1; count <= mostApostrophes && counts[depth] == 0; ++count) {
            std::string tried;
            for (const char byte : text) {
                tried += byte == '\'' ? std::string(count, byte) : std::string(1, byte);
            }
            counts[depth] = shownInside(depth, tried) == wanted ? count : 0;
        }
    }
    return counts;
}

} // namespace

std::size_t apostrophesForOne(std::size_t depth) {
    static const Counts counts = tryCounts("a'b c", "a'b c");
    return depth < levels ? counts[depth] : 0;
}

std::string quotedInStyle(std::string_view type, std::string_view text, std::size_t depth) {
    static const Counts inNumber = tryCounts("{0,number,0 'E'}", "0 E");
    static const Counts inDate = tryCounts("{0,date,- 'day'}", "- day");
    const std::size_t count = depth < levels ? (type == "number" ? inNumber : inDate)[depth] : 0;
    const std::string quotes(count, '\'');
    return count > 0 ? quotes + std::string(text) + quotes : std::string();
}

} // namespace zem::msglib::tool
