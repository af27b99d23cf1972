#include "message/Outcome.h"

#include <pthread.h>

#include <set>
#include <string_view>

namespace zem::msglib {
namespace {

using namespace std::string_literals;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int choiceLevels = 3000;
#else
constexpr int choiceLevels = 10'000;
#endif

std::string nestedChoices(int levels) {
    std::string pattern;
    for (int level = 0; level < levels; ++level) {
        pattern += "{0,choice,#";
    }
    pattern += "{0}";
    for (int level = 0; level < levels; ++level) {
        pattern += level % 100 == 0 ? ".}" : "}";
    }
    return pattern;
}

void* renderNestedChoices(void* result) {
    *static_cast<std::string*>(result) = outcome(nestedChoices(choiceLevels), {7});
    return nullptr;
}

TEST(MessageExtremes, NestedChoicesNeedNoDeepStack) {
    pthread_attr_t attributes;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, 256 * 1024), 0);
    pthread_t thread;
    std::string text;
    ASSERT_EQ(pthread_create(&thread, &attributes, renderNestedChoices, &text), 0);
    ASSERT_EQ(pthread_join(thread, nullptr), 0);
    ASSERT_EQ(pthread_attr_destroy(&attributes), 0);
    EXPECT_EQ(text, "7" + std::string(choiceLevels / 100, '.'));
}

TEST(MessageExtremes, DeepBraces) {
    const std::string opening(100'000, '{');
    const std::string closing(100'000, '}');
    EXPECT_EQ(outcome(opening, {}), "compile!" + illegalArgument);
    EXPECT_EQ(outcome("{0,date," + opening + closing + "}", {0}), opening + closing);
}

TEST(MessageExtremes, EveryShortPatternEndsAsDocumented) {
    constexpr std::string_view alphabet = "{}',0x";
    constexpr int longest = 5;
    const std::set<std::string> failures = {"compile!" + unexpectedBrace,
                                            "compile!" + illegalArgument};
    int combinations = 1;
    for (int length = 0; length <= longest; ++length, combinations *= 6) {
        for (int combination = 0; combination < combinations; ++combination) {
            std::string pattern;
            for (int rest = combination; static_cast<int>(pattern.size()) < length; rest /= 6) {
                pattern += alphabet[static_cast<std::size_t>(rest % 6)];
            }
            const std::string text = outcome(pattern, {"v"s});
            const std::string empty = outcome(pattern, {});
            if (failures.count(text) != 0) {
                EXPECT_EQ(empty, text) << pattern;
                continue;
            }
            EXPECT_EQ(text.find('!'), std::string::npos) << pattern;
            const std::size_t argument = text.find('v');
            EXPECT_EQ(empty, argument == std::string::npos
                                 ? text
                                 : text.substr(0, argument) + "!" + indexTooHigh)
                << pattern;
        }
    }
}

} // namespace
} // namespace zem::msglib
