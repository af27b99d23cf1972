#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zem::msglib::tool {

/// The places of text in a pattern: the text of a message, or a style.
enum class TextPlace : std::uint8_t { message, number, date };

/// Returns a text `count` times.
std::string repeated(std::string_view text, std::size_t count);

/// Returns what a message pattern shows inside `depth` choices. The choices choose their first
/// text, and the arguments are numbers. Empty if rendering fails.
std::string shownInside(std::size_t depth, const std::string& pattern);

/// Asks the library what spellings of a text show at one place inside a number of choices.
class TextTrial {
public:
    TextTrial(TextPlace place, std::size_t depth);

    TextPlace place() const noexcept { return place_; }

    /// Returns whether a spelling shows a text in every context: with and without other text,
    /// placeholders, digits, fields or choices before and after it.
    bool showsEverywhere(std::string_view spelling, std::string_view text) const;

    /// Returns whether a spelling shows a text after other text, at the end of the place.
    bool showsAtEnd(std::string_view spelling, std::string_view text) const;

    /// Returns what a spelling shows there, without the text around it. If rendering fails, returns
    /// a text that no spelling shows.
    std::string shownAtEnd(std::string_view spelling) const;

private:
    /// The text around a spelling, in the pattern and in the shown text.
    struct Frame {
        std::string before;
        std::string after;
        std::string shownBefore;
        std::string shownAfter;
    };

    void addFrames(const std::string& before, const std::string& after,
                   const std::string& shownBefore, const std::string& shownAfter, bool isForEnd);
    static std::string shown(const Frame& frame, std::string_view spelling);

    TextPlace place_;
    std::size_t depth_;
    std::vector<Frame> everywhere_;
    std::vector<Frame> atEnd_;
};

} // namespace zem::msglib::tool
