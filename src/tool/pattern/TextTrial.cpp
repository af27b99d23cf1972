#include "tool/pattern/TextTrial.h"

#include "msglib/MessageFormat.h"

#include <boost/any.hpp>

#include <algorithm>
#include <list>
#include <stdexcept>

// A spelling and a text go in, the answer whether the spelling shows the text comes out. Frames put
// other text, placeholders, digits or choices around the spelling. Each frame is rendered by the
// library and compared with the expected text.

namespace zem::msglib::tool {

namespace {

// The result of a trial that fails. No other text has this byte.
constexpr const char* failed = "\xFF";

// The argument that chooses, and the argument that decimal and date styles show. Every style shows
// the latter differently.
constexpr int choosing = 0;
constexpr int number = 1234;

/// Returns the text that a message shows.
std::string shownBy(const std::string& pattern) {
    std::string result;
    try {
        MessageFormat(pattern).format(std::list<boost::any>{choosing, number}, result);
    } catch (const std::runtime_error&) {
        return failed;
    }
    return result;
}

} // namespace

std::string repeated(std::string_view text, std::size_t count) {
    std::string result;
    for (; count > 0; --count) {
        result += text;
    }
    return result;
}

std::string shownInside(std::size_t depth, const std::string& pattern) {
    std::string result =
        shownBy(repeated("{0,choice,0#", depth) + pattern + std::string(depth, '}'));
    return result == failed ? std::string() : result;
}

TextTrial::TextTrial(TextPlace place, std::size_t depth) : place_(place), depth_(depth) {
    switch (place) {
    case TextPlace::message:
        addFrames("", "", "", "", false);
        addFrames("ab ", "", "ab ", "", true);
        addFrames("ab ", " ab", "ab ", " ab", false);
        addFrames("{0}", "{0}", "0", "0", false);
        break;
    case TextPlace::number:
        addFrames("{1,number,0", "}", "1234", "", true);
        addFrames("{1,number,", "0}", "", "1234", true);
        addFrames("{1,number,#,##0.00 ", "}", "1,234.00 ", "", false);
        addFrames("{1,number,", " #,##0.00}", "", " 1,234.00", false);
        break;
    case TextPlace::date:
        addFrames("{0,date,", "}", "", "", false);
        addFrames("{0,date,d ", "}", "1 ", "", true);
        addFrames("{0,date,d ", " d}", "1 ", " 1", false);
        break;
    }
}

void TextTrial::addFrames(const std::string& before, const std::string& after,
                          const std::string& shownBefore, const std::string& shownAfter,
                          bool isForEnd) {
    const Frame amongChoices = {repeated("{0,choice,-1#z|0#", depth_) + before,
                                after + repeated("|9#z}", depth_), shownBefore, shownAfter};
    everywhere_.push_back(amongChoices);
    everywhere_.push_back({repeated("{0,choice,0#", depth_) + before,
                           after + std::string(depth_, '}'), shownBefore, shownAfter});
    if (isForEnd) {
        atEnd_.push_back(amongChoices);
    }
}

std::string TextTrial::shown(const Frame& frame, std::string_view spelling) {
    const std::string all = shownBy(frame.before + std::string(spelling) + frame.after);
    const std::size_t around = frame.shownBefore.size() + frame.shownAfter.size();
    const bool isFramed =
        all.size() >= around && all.compare(0, frame.shownBefore.size(), frame.shownBefore) == 0 &&
        all.compare(all.size() - frame.shownAfter.size(), std::string::npos, frame.shownAfter) == 0;
    return isFramed ? all.substr(frame.shownBefore.size(), all.size() - around) : failed;
}

bool TextTrial::showsEverywhere(std::string_view spelling, std::string_view text) const {
    return std::all_of(everywhere_.begin(), everywhere_.end(),
                       [&](const Frame& frame) { return shown(frame, spelling) == text; });
}

bool TextTrial::showsAtEnd(std::string_view spelling, std::string_view text) const {
    return std::all_of(atEnd_.begin(), atEnd_.end(),
                       [&](const Frame& frame) { return shown(frame, spelling) == text; });
}

std::string TextTrial::shownAtEnd(std::string_view spelling) const {
    return shown(atEnd_.front(), spelling);
}

} // namespace zem::msglib::tool
