#include "tool/preview/SampleTable.h"

#include "tool/pattern/ChoiceIntervals.h"
#include "tool/preview/ArgumentSamples.h"

#include <algorithm>
#include <optional>
#include <set>
#include <unordered_set>
#include <utility>

// A pattern tree goes in, a table of arguments and rendered texts comes out. First, the texts of
// choices are reached in one of two ways: by all combinations of the intervals between limits, or,
// if there are too many, text by text, with arguments in the intervals of all choices around it.
// Then the values that a text shows are varied one at a time, in the intervals that reach this
// text. An estimate of the work stops the table for huge patterns.

namespace zem::msglib::tool {

namespace {

constexpr std::size_t mostCombinations = 256;
constexpr std::size_t workForTexts = std::size_t{256} << 20; // roughly the bytes read and written
constexpr std::size_t workForValues = std::size_t{32} << 20;
constexpr std::size_t workForText = 16; // for each byte of a text, since texts are kept
constexpr std::size_t workForArgument = 64;
constexpr std::size_t workForStep = 16;
constexpr std::size_t workForLevel = 512; // of nested choices, which rendering walks through

using Arguments = std::vector<WrittenArgument>;
using Intervals = std::vector<NumberInterval>; // by argument

class TableMaker {
public:
    TableMaker(const PatternTree& tree, const std::vector<Parameter>& parameters)
        : tree_(tree),
          samples_(samplesOf(tree, parameters)),
          intervals_(tree.texts().size()) {
        for (const PatternText& text : tree.texts()) {
            for (const Placeholder& placeholder : text.placeholders) {
                const auto intervals = tool::intervalsOf(placeholder);
                for (std::size_t number = 0; number < intervals.size(); ++number) {
                    intervals_[placeholder.entries[number].text] = intervals[number].numbers;
                }
            }
        }
        for (const ArgumentSamples& samples : samples_) {
            const auto& first = samples.cases.empty() ? samples.values : samples.cases;
            usual_.push_back(first.front().argument);
        }
    }

    SampleTable make() {
        if (hasFewCombinations()) {
            renderCombinations();
        } else {
            renderEachText();
            table_.notes.emplace_back(
                "not all combinations of choices are shown, but each text of each choice");
        }
        if (isExhausted()) {
            table_.notes = {"too many texts to show all of them"};
        }
        mostWork_ = work_ + workForValues;
        renderValues();
        if (isExhausted()) {
            table_.notes.emplace_back("too many values to show all of them");
        }
        return std::move(table_);
    }

private:
    bool isExhausted() const noexcept { return work_ >= mostWork_; }

    bool hasFewCombinations() const {
        std::size_t count = 1;
        for (const ArgumentSamples& samples : samples_) {
            count *= std::max<std::size_t>(samples.cases.size(), 1);
            if (count > mostCombinations) {
                return false;
            }
        }
        return true;
    }

    void renderCombinations() {
        std::vector<std::size_t> chosen(samples_.size());
        Arguments arguments = usual_;
        while (!isExhausted()) {
            renderRow(arguments);
            std::size_t index = samples_.size(); // the last argument varies fastest
            while (index > 0 && !advance(index - 1, chosen, arguments)) {
                --index;
            }
            if (index == 0) {
                return;
            }
        }
    }

    /// Sets an argument to its next case. Returns false if that is the first one again.
    bool advance(std::size_t index, std::vector<std::size_t>& chosen, Arguments& arguments) const {
        const auto& cases = samples_[index].cases;
        chosen[index] = chosen[index] + 1 < cases.size() ? chosen[index] + 1 : 0;
        if (!cases.empty()) {
            arguments[index] = cases[chosen[index]].argument;
        }
        return chosen[index] > 0;
    }

    void renderEachText() {
        for (std::size_t number = 0; number < tree_.texts().size() && !isExhausted(); ++number) {
            if (const auto intervals = intervalsAround(number)) {
                renderRow(argumentsIn(*intervals));
            }
        }
    }

    void renderValues() {
        for (std::size_t number = 0; number < tree_.texts().size() && !isExhausted(); ++number) {
            const std::set<std::size_t> shown = shownIn(tree_.texts()[number]);
            const auto intervals = shown.empty() ? std::nullopt : intervalsAround(number);
            if (intervals) {
                for (const std::size_t index : shown) {
                    renderValuesOf(index, *intervals);
                }
            }
        }
    }

    /// Returns the arguments that a text shows outside of its choices.
    std::set<std::size_t> shownIn(const PatternText& text) const {
        std::set<std::size_t> shown;
        for (const Placeholder& placeholder : text.placeholders) {
            const auto index = static_cast<std::size_t>(placeholder.index);
            if (placeholder.kind != PlaceholderKind::Choice && index < samples_.size()) {
                shown.insert(index);
            }
        }
        return shown;
    }

    void renderValuesOf(std::size_t index, const Intervals& intervals) {
        const NumberInterval& interval = intervals[index];
        Arguments arguments = argumentsIn(intervals);
        for (const Sample& sample : samples_[index].values) {
            if (isExhausted()) {
                return;
            }
            if ((!interval.low && !interval.high) || interval.contains(sample.number)) {
                arguments[index] = sample.argument;
                renderRow(arguments);
            }
        }
    }

    /// Returns the intervals of arguments that choose a text; nothing if no arguments do.
    std::optional<Intervals> intervalsAround(std::size_t number) {
        Intervals around(samples_.size());
        work_ += samples_.size() * workForArgument;
        while (tree_.texts()[number].depth > 0) {
            const PatternText& inner = tree_.texts()[number];
            const PatternText& outer = tree_.texts()[inner.parent];
            const auto index =
                static_cast<std::size_t>(outer.placeholders[inner.placeholder].index);
            if (index >= around.size()) {
                return std::nullopt;
            }
            around[index] = around[index].within(intervals_[number]);
            if (around[index].isEmpty()) {
                return std::nullopt;
            }
            work_ += workForStep;
            number = inner.parent;
        }
        return around;
    }

    Arguments argumentsIn(const Intervals& intervals) const {
        Arguments arguments = usual_;
        for (std::size_t index = 0; index < intervals.size(); ++index) {
            if (intervals[index].low || intervals[index].high) {
                arguments[index] = argumentIn(intervals[index], samples_[index]);
            }
        }
        return arguments;
    }

    /// Returns an argument in an interval: one of the first cases if possible, since these read
    /// best.
    static WrittenArgument argumentIn(const NumberInterval& interval,
                                      const ArgumentSamples& samples) {
        constexpr std::size_t mostTried = 8;
        const std::size_t count = std::min(samples.cases.size(), mostTried);
        for (std::size_t number = 0; number < count; ++number) {
            if (interval.contains(samples.cases[number].number)) {
                return samples.cases[number].argument;
            }
        }
        return numberSample(interval.sample()).argument;
    }

    void renderRow(const Arguments& arguments) {
        std::string key;
        for (const WrittenArgument& argument : arguments) {
            key.append(argument.text).append(1, '\0');
        }
        work_ += arguments.size() * workForArgument;
        if (!tried_.insert(std::move(key)).second) {
            return;
        }
        const std::string_view pattern = tree_.texts().front().text.text();
        Rendering rendering = render(pattern, arguments);
        work_ += pattern.size() + rendering.text.size() * workForText +
                 tree_.texts().back().depth * workForLevel; // the last text is one of the deepest
        if (seen_.insert((rendering.isFailure ? '!' : '=') + rendering.text).second) {
            table_.rows.push_back({arguments, std::move(rendering)});
        }
    }

    const PatternTree& tree_;
    std::vector<ArgumentSamples> samples_;
    Intervals intervals_; // of the texts of choices, by the number of the text
    Arguments usual_;     // the default for each argument
    std::unordered_set<std::string> tried_;
    std::unordered_set<std::string> seen_;
    std::size_t work_ = 0;
    std::size_t mostWork_ = workForTexts;
    SampleTable table_;
};

} // namespace

SampleTable sampleTableOf(const PatternTree& tree, const std::vector<Parameter>& parameters) {
    return TableMaker(tree, parameters).make();
}

} // namespace zem::msglib::tool
