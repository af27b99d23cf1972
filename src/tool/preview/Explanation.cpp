#include "tool/preview/Explanation.h"

#include "tool/pattern/ChoiceIntervals.h"
#include "tool/preview/FormatDescription.h"
#include "tool/text/DisplayText.h"

#include <algorithm>
#include <vector>

// A pattern tree goes in, its description in English comes out. The tree is visited in the order of
// the pattern: static text, placeholders, and the entries of choices. The texts around the current
// one are kept in frames, so the machine stack does not grow with the nesting of a pattern.

namespace zem::msglib::tool {

namespace {

constexpr std::size_t mostIndented = 8; // levels
constexpr std::size_t mostVanished = 8; // bytes that are named

/// A text that is being explained.
struct Frame {
    std::size_t text;            ///< its index in the tree
    std::size_t begin;           ///< where it begins in the file, with its quoting
    std::size_t end;             ///< where it ends there
    std::size_t piece = 0;       ///< the next one
    std::size_t placeholder = 0; ///< the next one, or the choice that is being explained
    std::size_t entry = 0;       ///< the next entry of this choice
    std::vector<ChoiceInterval> intervals = {}; ///< of its entries
};

class Explainer {
public:
    Explainer(const PatternTree& tree, const Colours& colours) : tree_(tree), colours_(colours) {}

    std::string explain() {
        const Place whole = tree_.texts().front().text.place();
        frames_.push_back({0, whole.offset, whole.end()});
        while (!frames_.empty()) {
            goOn();
        }
        return std::move(out_);
    }

private:
    const PatternText& text() const { return tree_.texts()[frames_.back().text]; }

    /// Explains the next part of the innermost text.
    void goOn() {
        Frame& frame = frames_.back();
        const auto& placeholders = text().placeholders;
        if (!frame.intervals.empty()) {
            explainEntry(placeholders[frame.placeholder]);
            return;
        }
        explainStatic();
        if (frame.placeholder < placeholders.size()) {
            explainPlaceholder(placeholders[frame.placeholder]);
            return;
        }
        for (const SyntaxError& error : text().errors) {
            line(0, colours_.error("does not compile: " + error.message));
        }
        if (text().pieces.empty() && placeholders.empty() && text().errors.empty()) {
            line(0, "nothing");
        }
        frames_.pop_back();
    }

    /// Explains the static text before the next placeholder.
    void explainStatic() {
        Frame& frame = frames_.back();
        const TracedText& source = text().text;
        const auto& placeholders = text().placeholders;
        const bool isLast = frame.placeholder == placeholders.size();
        const std::size_t end = isLast ? frame.end : placeholders[frame.placeholder].whole.offset;
        const std::size_t position = isLast ? source.size() : source.find(end);
        std::vector<std::string_view> pieces;
        std::string shownText;
        while (frame.piece < text().pieces.size()) {
            const std::string_view piece = text().pieces[frame.piece].text;
            if (static_cast<std::size_t>(piece.data() - source.text().data()) >= position) {
                break;
            }
            pieces.push_back(piece);
            shownText += piece;
            ++frame.piece;
        }
        if (!shownText.empty()) {
            line(0, "text " + colours_.value('"' + visibleLine(shownText) + '"'));
            if (text().errors.empty() && end - frame.begin != shownText.size()) {
                explainQuoting({&source.file(), frame.begin, end - frame.begin}, pieces);
            }
        }
        frame.begin = end;
    }

    /// Appends the bytes of a place that are not in the pieces.
    void explainQuoting(const Place& written, const std::vector<std::string_view>& pieces) {
        std::vector<std::size_t> vanished;
        std::size_t next = written.offset;
        const auto skipTo = [&](std::size_t offset) {
            for (; next < offset; ++next) {
                vanished.push_back(next);
            }
            next = offset + 1;
        };
        for (const std::string_view piece : pieces) {
            for (std::size_t at = 0; at < piece.size(); ++at) {
                skipTo(text().text.placeOf(piece.substr(at, 0)).offset);
            }
        }
        skipTo(written.end());
        if (vanished.empty()) {
            return;
        }
        std::string names;
        const std::size_t named = std::min(vanished.size(), mostVanished);
        for (std::size_t number = 0; number < named; ++number) {
            names += (number == 0 ? " " : ", ") + nameOf(*written.file, vanished[number]);
        }
        if (named < vanished.size()) {
            names += " and " + std::to_string(vanished.size() - named) + " more";
        }
        line(1, "written `" + visibleLine(written.text()) + "`; quoting takes away" + names);
    }

    static std::string nameOf(const SourceFile& file, std::size_t offset) {
        const auto position = file.positionOf(offset);
        const std::string byte = visibleLine(file.text().substr(offset, 1));
        return (byte == " " ? "a blank" : byte) + " (" + std::to_string(position.line) + ':' +
               std::to_string(position.column) + ')';
    }

    void explainPlaceholder(const Placeholder& placeholder) {
        Frame& frame = frames_.back();
        frame.begin = placeholder.whole.end();
        const std::string argument =
            colours_.title("argument " + std::to_string(placeholder.index));
        if (placeholder.kind == PlaceholderKind::Choice) {
            line(0, argument + " decides:");
            frame.intervals = intervalsOf(placeholder);
            frame.placeholder += frame.intervals.empty() ? 1 : 0;
            return;
        }
        ++frame.placeholder;
        const FormatDescription description = describeFormat(placeholder);
        line(0, argument + (placeholder.kind == PlaceholderKind::Plain ? " " : ": ") +
                    description.summary);
        for (const std::string& detail : description.details) {
            line(1, detail);
        }
    }

    /// Continues with the text of the next entry of a choice.
    void explainEntry(const Placeholder& choice) {
        Frame& frame = frames_.back();
        if (frame.entry == choice.entries.size()) {
            frame.intervals.clear();
            frame.entry = 0;
            ++frame.placeholder;
            return;
        }
        const std::size_t number = frame.entry++;
        line(1, describeInterval(choice, number, frame.intervals[number]) + ':');
        const Place source = sourceOf(choice, number);
        frames_.push_back({choice.entries[number].text, source.offset, source.end()});
    }

    /// Returns the place of the text of an entry, as written.
    static Place sourceOf(const Placeholder& choice, std::size_t number) {
        const TracedText& style = choice.style;
        const auto positionIn = [&style](const ChoiceEntry& entry) {
            return static_cast<std::size_t>(entry.limitText.text().data() - style.text().data());
        };
        const ChoiceEntry& entry = choice.entries[number];
        const std::size_t separator = positionIn(entry) + entry.limitText.size();
        const std::size_t begin = style.place(separator, separator).offset + 1;
        std::size_t end = choice.whole.end() - 1;
        if (number + 1 < choice.entries.size()) {
            const std::size_t next = positionIn(choice.entries[number + 1]);
            end = style.place(next - 1, next - 1).offset;
        }
        return {choice.whole.file, begin, std::max(begin, end) - begin};
    }

    /// Writes a line of the innermost text.
    ///
    /// @param inside  additional levels of indentation
    void line(std::size_t inside, const std::string& content) {
        const std::size_t depth = text().depth;
        out_.append(4 * std::min(depth, mostIndented) + 2 * inside, ' ');
        if (depth > mostIndented) {
            out_ += colours_.note("[level " + std::to_string(depth) + "] ");
        }
        out_ += content;
        out_ += '\n';
    }

    const PatternTree& tree_;
    const Colours& colours_;
    std::vector<Frame> frames_;
    std::string out_;
};

} // namespace

std::string explanationOf(const PatternTree& tree, const Colours& colours) {
    return Explainer(tree, colours).explain();
}

} // namespace zem::msglib::tool
