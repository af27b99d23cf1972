#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zem::msglib::tool {

/// Where a text can stand in a pattern: in the text of a message, or in a style.
enum class TextPlace : std::uint8_t { message, number, date };

/// Returns a text as many times as `count`.
std::string repeated(std::string_view text, std::size_t count);

/// Returns what a message pattern shows inside as many choices, which pick their first text, with a
/// number for its arguments; empty if it fails.
std::string shownInside(std::size_t depth, const std::string& pattern);

/// Asks the library what spellings of a text show at one place inside a number of choices.
class TextTrial {
public:
    TextTrial(TextPlace place, std::size_t depth);

    TextPlace place() const noexcept { return place_; }

    /// Tells whether a spelling shows a text wherever it may stand there: with and without other
    /// text, placeholders, digits, fields or choices before and after it.
    bool showsEverywhere(std::string_view spelling, std::string_view text) const;

    /// Tells whether a spelling shows a text after other text, at the end of what is written there.
    bool showsAtEnd(std::string_view spelling, std::string_view text) const;

    /// Returns what a spelling shows there, as far as it can be told from what is around it; a text
    /// that nothing shows if it fails.
    std::string shownAtEnd(std::string_view spelling) const;

private:
    /// What is around a spelling: in the pattern, and in what is shown.
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
