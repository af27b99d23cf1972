#include "message/Outcome.h"

#include <pthread.h>

#include <set>

namespace zem::msglib {
namespace {

using namespace std::string_literals;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int choiceLevels = 3000;
#else
constexpr int choiceLevels = 10'000;
#endif

std::string nestedChoices() {
    std::string pattern;
    for (int level = 0; level < choiceLevels; ++level) {
        pattern += "{0,choice,#";
    }
    pattern += "{0}";
    for (int level = 0; level < choiceLevels; ++level) {
        pattern += level % 100 == 0 ? ".}" : "}";
    }
    return pattern;
}

TEST(MessageExtremes, NestedChoicesNeedNoDeepStack) {
    pthread_attr_t attributes;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, 256 * 1024), 0);
    pthread_t thread;
    std::string text;
    const auto render = [](void* result) -> void* {
        *static_cast<std::string*>(result) = outcome(nestedChoices(), {7});
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&thread, &attributes, render, &text), 0);
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
    const std::set<std::string> failures = {"compile!" + unexpectedBrace,
                                            "compile!" + illegalArgument};
    forEachText("{}',0x", 5, "", [&](const std::string& pattern) {
        const std::string text = outcome(pattern, {"v"s});
        const std::size_t argument = text.find('v');
        EXPECT_EQ(outcome(pattern, {}), argument == std::string::npos
                                            ? text
                                            : text.substr(0, argument) + "!" + indexTooHigh)
            << pattern;
        EXPECT_TRUE(failures.count(text) != 0 || text.find('!') == std::string::npos) << pattern;
    });
}

} // namespace
} // namespace zem::msglib
