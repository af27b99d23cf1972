#include "tool/pattern/Spelling.h"

#include "msglib/MessageFormat.h"

#include <boost/any.hpp>

#include <array>
#include <list>
#include <stdexcept>

namespace zem::msglib::tool {

namespace {

constexpr std::size_t mostApostrophes = 64;
constexpr std::size_t levels = 8; // deeper inside, even more would be needed

/// How many apostrophes are needed inside as many choices as the position says.
using Counts = std::array<std::size_t, levels>;

/// Returns what a text inside as many choices shows.
std::string rendered(const std::string& text, std::size_t depth) {
    std::string pattern;
    for (std::size_t level = 0; level < depth; ++level) {
        pattern += "{0,choice,0#";
    }
    pattern += text + std::string(depth, '}');
    std::string result;
    try {
        MessageFormat(pattern).format(std::list<boost::any>{0}, result);
    } catch (const std::runtime_error&) {
        result.clear();
    }
    return result;
}

/// Finds for each depth the least number of apostrophes that, in place of each of those in `text`,
/// show `wanted`.
Counts tryCounts(const std::string& text, const std::string& wanted) {
    Counts counts{};
    for (std::size_t depth = 0; depth < levels; ++depth) {
        for (std::size_t count = 1; count <= mostApostrophes && counts[depth] == 0; ++count) {
            std::string tried;
            for (const char byte : text) {
                tried += byte == '\'' ? std::string(count, byte) : std::string(1, byte);
            }
            counts[depth] = rendered(tried, depth) == wanted ? count : 0;
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
