#include "message/Outcome.h"
#include "msglib/ChoiceFormat.h"
#include "msglib/DecimalFormat.h"
#include "msglib/SimpleDateFormat.h"
#include "support/Wine.h"

#include <pthread.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <limits>

namespace zem::msglib {
namespace {

using namespace std::string_literals;

constexpr int choiceLevels = 10'000;

// Compares texts of megabytes: a failure shows their sizes and where they differ.
testing::AssertionResult areEqual(const std::string& actual, const std::string& expected) {
    if (actual == expected) {
        return testing::AssertionSuccess();
    }
    const auto shorter = std::min(actual.size(), expected.size());
    const auto end = actual.begin() + static_cast<std::ptrdiff_t>(shorter);
    const auto at = std::mismatch(actual.begin(), end, expected.begin()).first - actual.begin();
    const auto position = static_cast<std::size_t>(at);
    return testing::AssertionFailure()
           << actual.size() << " bytes instead of " << expected.size() << ", from " << position
           << " on " << testing::PrintToString(actual.substr(position, 80)) << " instead of "
           << testing::PrintToString(expected.substr(position, 80));
}

std::string nestedChoices(std::string_view innermost) {
    std::string pattern;
    for (int level = 0; level < choiceLevels; ++level) {
        pattern += "{0,choice,#";
    }
    pattern += innermost;
    for (int level = 0; level < choiceLevels; ++level) {
        pattern += level % 100 == 0 ? ".}" : "}";
    }
    return pattern;
}

TEST(Extremes, NestedChoicesUseNoDeepStack) {
    pthread_attr_t attributes;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, 256 * 1024), 0);
    pthread_t thread;
    std::string text;
    const auto render = [](void* result) -> void* {
        *static_cast<std::string*>(result) = outcome(nestedChoices("{0}"), {7});
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&thread, &attributes, render, &text), 0);
    ASSERT_EQ(pthread_join(thread, nullptr), 0);
    ASSERT_EQ(pthread_attr_destroy(&attributes), 0);
    EXPECT_EQ(text, "7" + std::string(choiceLevels / 100, '.'));
}

// The failure is that of the outermost message that doesn't compile. The text that this message has
// appended is removed, and the text before it is kept.
TEST(Extremes, NestedFailuresComeInCompilingOrder) {
    expectOutcomes({
        {__LINE__, "a{0,choice,0#b{0,choice,0#c{2}d}e}f", {0}, "abc!" + indexTooHigh},
        {__LINE__, "a{0,choice,0#b{0,choice,0#c{2}d{x}}e}f", {0}, "ab!" + illegalArgument},
        {__LINE__, "a{0,choice,0#b{0,choice,0#c{2}d}e{x}}f", {0}, "a!" + illegalArgument},
        {__LINE__, "a{0,choice,0#b{0,choice,0#c{2}d}e}f{x}", {0}, "compile!" + illegalArgument},
        {__LINE__,
         "a{0,choice,0#b{0,number,0#}{0,choice,}}",
         {0},
         "a!digit mark (#) following zero-index"},
        {__LINE__, "a{0,choice,0#b{2}{0,choice,}}", {0}, "a!" + styleRequired},
        {__LINE__, "a{0,choice,0#b{1,choice,1}}", {0, "x"s}, "a!" + choiceSyntax},
        {__LINE__, "a{0,choice,0#b{1,choice,1#c}}", {0, "x"s}, "ab!" + notANumber},
        {__LINE__, "a{0,choice,0#b{0}}{0,choice,0#c{2}}", {0}, "ab0c!" + indexTooHigh},
    });
}

// With more than linear time, the test would exceed its time limit.
TEST(Extremes, DeepNestingTakesLinearTime) {
    const std::string dots(choiceLevels / 100, '.');
    const std::string text(std::size_t{4} << 20, 'x');
    EXPECT_TRUE(areEqual(outcome(nestedChoices(text), {0}), text + dots));
    EXPECT_TRUE(areEqual(outcome(nestedChoices("") + text, {0}), dots + text));
    EXPECT_EQ(outcome(nestedChoices("{1}"), {0}), "!" + indexTooHigh);
    EXPECT_EQ(outcome(nestedChoices("{1,number}"), {0, "x"s}), "!" + notANumber);
}

TEST(Extremes, ResultsWasteLittleMemory) {
    constexpr std::size_t constant = 1024;
    const Arguments texts(100'000, boost::any(""s));
    std::string placeholders;
    for (int count = 0; count < 10'000; ++count) {
        placeholders += "{1}";
    }
    for (const std::string& pattern : {"{0}"s, placeholders, std::string(70'000, 'x')}) {
        const std::string text = MessageLibrary::instance().formatMessage(pattern, texts);
        EXPECT_LE(text.capacity(), 2 * text.size() + constant) << pattern.substr(0, 9);
    }
}

constexpr std::size_t mebibyte = 1 << 20;

std::string times(std::size_t count, std::string_view part) {
    std::string text;
    while (count-- > 0) {
        text += part;
    }
    return text;
}

std::string asDecimal(const std::string& pattern) {
    std::string out;
    const std::string failure =
        failureOf([&] { DecimalFormat(pattern, {}).format(7.25, out); }, "!");
    return out + failure;
}

std::string asChoice(const std::string& pattern) {
    return textOf(ChoiceFormat(pattern), 7.0);
}

std::string asDate(const std::string& pattern) {
    return textOf(SimpleDateFormat(pattern, std::locale()), boost::any(0));
}

// With more than linear time, the test would exceed its time limit.
TEST(Extremes, RepeatedPartsGiveRepeatedTexts) {
    const auto asMessage = [](const std::string& pattern) { return outcome(pattern, {7, "s"s}); };
    const struct {
        int line;
        std::string (*render)(const std::string&);
        const char* part;
    } rows[] = {
        {__LINE__, asMessage, "a"},
        {__LINE__, asMessage, "''."},
        {__LINE__, asMessage, "'{'."},
        {__LINE__, asMessage, "{1}{0}"},
        {__LINE__, asMessage, "{0,foo,{'x}}"},
        {__LINE__, asMessage, "{0,number,0.0}"},
        {__LINE__, asMessage, "{0,choice,0#{1}}"},
        {__LINE__, asDate, "x"},
        {__LINE__, asDate, "dM"},
        {__LINE__, asDate, "'d' "},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.line);
        const std::size_t count = mebibyte / std::strlen(row.part);
        EXPECT_TRUE(
            areEqual(row.render(times(count, row.part)), times(count, row.render(row.part))));
    }
}

TEST(Extremes, LongPatterns) {
    const std::string letters(mebibyte, 'x');
    const std::string zeros(mebibyte, '0');
    const std::string opening(100'000, '{');
    const std::string closing(100'000, '}');
    if (!runsUnderWine()) { // which renders long runs as shorter ones
        EXPECT_TRUE(areEqual(asDate(std::string(mebibyte, 'd')), "Thursday"));
        EXPECT_TRUE(areEqual(asDate(std::string(mebibyte, 'g')), "A.D."));
    }
    EXPECT_TRUE(areEqual(asDecimal(letters + "0.00" + letters), letters + "7.25" + letters));
    EXPECT_TRUE(
        areEqual(asChoice(letters + "#" + times(mebibyte / 4, "'|' ")), times(mebibyte / 4, "| ")));
    EXPECT_TRUE(areEqual(asChoice("0#" + letters + "|9#" + letters), letters));
    EXPECT_TRUE(areEqual(asChoice(times(mebibyte / 4, "0#a|") + "1#b"), "b"));
    EXPECT_TRUE(areEqual(asChoice("0#" + opening + closing + "|8#b"), opening + closing));
    EXPECT_TRUE(areEqual(outcome(opening, {}), "compile!" + illegalArgument));
    EXPECT_TRUE(areEqual(outcome("{0,date," + opening + closing + "}", {0}), opening + closing));
    EXPECT_TRUE(areEqual(outcome("{" + letters + "}", {0}), "compile!" + illegalArgument));
    EXPECT_TRUE(areEqual(outcome("{" + zeros + "}", {"a"s}), "a"));
    EXPECT_TRUE(
        areEqual(outcome(times(100'000, "{0}{2}{1}"), {"a"s, "b"s, "c"s}), times(100'000, "acb")));
}

TEST(Extremes, MillionsOfDigits) {
    const std::string zeros(1'000'000, '0');
    EXPECT_EQ(asDecimal(zeros).size(), 309U);
    EXPECT_EQ(asDecimal("0." + zeros).size(), 1'000'002U);
    EXPECT_EQ(asDecimal("0." + std::string(1'000'000, '#')), "7.25");
    EXPECT_EQ(asDecimal(std::string(1'000'000, '#')), "7");
    EXPECT_EQ(asDecimal(zeros + "E0"), "1.#INF");
    EXPECT_EQ(asDecimal("0E" + zeros).size(), 2U + 32'767U);
    DecimalFormat format("#,##0.#", {});
    format.setMinimumIntegerDigits(1'000'000);
    format.setMinimumFractionDigits(1'000'000);
    EXPECT_EQ(textOf(format, 5e-324).size(), 2'333'334U);
    EXPECT_EQ(textOf(format, 7L).size(), 2'333'334U);
    format.setMaximumIntegerDigits(0);
    format.setMinimumFractionDigits(0);
    format.setMaximumFractionDigits(std::numeric_limits<int>::max());
    EXPECT_EQ(textOf(format, 5e-324).substr(0, 334), "." + std::string(323, '0') + "4940656458");
}

} // namespace
} // namespace zem::msglib
