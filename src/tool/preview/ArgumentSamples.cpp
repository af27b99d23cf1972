#include "tool/preview/ArgumentSamples.h"

#include "tool/pattern/ChoiceIntervals.h"

#include <algorithm>
#include <limits>
#include <string>
#include <string_view>

// A pattern tree goes in, values for each argument come out. First, the uses of each argument in
// all placeholders are collected, with the limits of its choices. Then the cases are chosen, one
// for each interval between limits, and the values that show what the formats of the argument do.

namespace zem::msglib::tool {

namespace {

constexpr double quarter = 0.25;
constexpr double numbers[] = {1234.567, 0, 1, -1, quarter, 1234567};
constexpr double counts[] = {7, 0, 1, -1, 1234567, 1234.5};
constexpr std::int64_t times[] = {1795424707, 1767540600}; // 2026-11-23T09:05:07, 2026-01-04T15:30

/// The uses of one argument in all placeholders.
struct Use {
    bool isPlain = false;
    bool isNumber = false;
    bool isPercentage = false;
    bool isTime = false;
    std::vector<double> written; ///< the limits of its choices, before their separators
    std::vector<double> limits;  ///< the same limits as the library compares them
};

bool isPercentage(std::string_view style) {
    return style == "percent" || style.find('%') != std::string_view::npos;
}

void add(Use& use, const Placeholder& placeholder) {
    switch (placeholder.kind) {
    case PlaceholderKind::Plain:
    case PlaceholderKind::Unknown: use.isPlain = true; break;
    case PlaceholderKind::Number:
    case PlaceholderKind::DecimalStyle:
        use.isNumber = true;
        use.isPercentage |= isPercentage(placeholder.style.text());
        break;
    case PlaceholderKind::Date:
    case PlaceholderKind::DateStyle: use.isTime = true; break;
    case PlaceholderKind::Choice:
        for (const ChoiceEntry& entry : placeholder.entries) {
            use.limits.push_back(entry.limit);
            use.written.push_back(writtenLimit(entry));
        }
    }
}

std::vector<Use> usesOf(const PatternTree& tree) {
    std::vector<Use> uses;
    for (const PatternText& text : tree.texts()) {
        for (const Placeholder& placeholder : text.placeholders) {
            const auto index =
                static_cast<std::size_t>(placeholder.index); // a negative index becomes a huge one
            if (index < mostSampledArguments) {
                uses.resize(std::max(uses.size(), index + 1));
                add(uses[index], placeholder);
            }
        }
    }
    return uses;
}

void sortUnique(std::vector<double>& values) {
    std::sort(values.begin(), values.end());
    values.erase(std::unique(values.begin(), values.end()), values.end());
}

/// Adds one number for each interval between limits, the lowest interval last.
void addCases(const std::vector<double>& limits, std::vector<Sample>& cases) {
    for (std::size_t index = 0; index < limits.size(); ++index) {
        const bool isLast = index + 1 == limits.size();
        const NumberInterval interval{limits[index],
                                      isLast ? std::nullopt : std::optional(limits[index + 1])};
        cases.push_back(numberSample(interval.sample()));
    }
    if (!limits.empty()) {
        cases.push_back(numberSample(NumberInterval{std::nullopt, limits.front()}.sample()));
    }
}

/// Adds the numbers at, between, above and below limits.
void addAround(const std::vector<double>& limits, std::vector<Sample>& values) {
    for (std::size_t index = 0; index < limits.size(); ++index) {
        values.push_back(numberSample(limits[index]));
        if (index + 1 < limits.size()) {
            values.push_back(numberSample(limits[index] / 2 + limits[index + 1] / 2));
        }
    }
    if (!limits.empty()) {
        values.push_back(numberSample(limits.back() + 1));
        values.push_back(numberSample(limits.front() - 1));
    }
}

template <std::size_t Size>
void addNumbers(const double (&numbersToAdd)[Size], std::vector<Sample>& values) {
    for (const double number : numbersToAdd) {
        values.push_back(numberSample(number));
    }
}

Sample textSample(std::string_view text) {
    return {textArgument(text), std::numeric_limits<double>::quiet_NaN()};
}

/// Adds values for an argument that is only used without a type.
void addPlain(std::size_t index, const Parameter& parameter, ArgumentSamples& samples) {
    const bool isAny = parameter.kind == ValueKind::any;
    if (isAny || parameter.kind == ValueKind::text) {
        samples.values.push_back(textSample(parameter.name.empty() ? "text" + std::to_string(index)
                                                                   : std::string(parameter.name)));
    }
    if (isAny) {
        samples.values.push_back(numberSample(1234));
        samples.values.push_back(numberSample(1234.5));
    } else if (parameter.kind != ValueKind::text) {
        addNumbers(counts, samples.values);
    }
}

ArgumentSamples samplesOf(Use& use, std::size_t index, const Parameter& parameter) {
    ArgumentSamples samples;
    sortUnique(use.limits);
    sortUnique(use.written);
    addCases(use.limits, samples.cases);
    addAround(use.written, samples.values);
    if (use.isTime) {
        for (const std::int64_t time : times) {
            samples.values.push_back({timeArgument(time), static_cast<double>(time)});
        }
    }
    const bool isDecided = !use.limits.empty() || use.isTime;
    if (use.isPercentage) { // the first value appears with the values of other arguments
        samples.values.push_back(numberSample(quarter));
    }
    if (use.isNumber) {
        addNumbers(numbers, samples.values);
    } else if (use.isPlain && !use.limits.empty()) {
        addNumbers(counts, samples.values);
    } else if (use.isPlain && !isDecided) {
        addPlain(index, parameter, samples);
    }
    if (samples.values.empty()) { // the argument is not used
        samples.values.push_back(textSample("unused"));
    }
    return samples;
}

} // namespace

Sample numberSample(double value) {
    return {numberArgument(value), value};
}

std::vector<ArgumentSamples> samplesOf(const PatternTree& tree,
                                       const std::vector<Parameter>& parameters) {
    std::vector<Use> uses = usesOf(tree);
    std::vector<ArgumentSamples> samples;
    for (std::size_t index = 0; index < uses.size(); ++index) {
        samples.push_back(samplesOf(uses[index], index,
                                    index < parameters.size() ? parameters[index] : Parameter()));
    }
    return samples;
}

} // namespace zem::msglib::tool
