#include "ProgramTexts.h"
#include "message/Outcome.h"
#include "msglib/MessageLibrary.h"

#include <future>
#include <thread>
#include <vector>

namespace zem::msglib {
namespace {

constexpr int threadCount = 8;
constexpr int rounds = 500;

// The library's one instance is made, registered with and used by all threads at the same time.
TEST(Threads, RenderAtOnce) {
    const std::string pattern =
        "{0} {0,number,#,##0.0} {0,number,currency} {1,date,long} {1,time} {0,choice,0#a|3#b{0}}";
    const MessageFormat shared(pattern);
    std::promise<void> start;
    const std::shared_future<void> started = start.get_future().share();
    const auto render = [&](int number) {
        started.wait();
        const MessageLibrary& library = MessageLibrary::instance();
        registerProgramTexts();
        const Arguments args = {number, 0};
        const std::string expected = library.formatMessage(pattern, args);
        const std::string value = "Value " + std::to_string(number) + "\n";
        int wrong = &library == &IMessageLibrary::instance() ? 0 : 1;
        for (int round = 0; round < rounds; ++round) {
            std::string text;
            wrong += shared.format(args, text) == expected ? 0 : 1;
            wrong += MessageFormat(shared).format(args, text) == expected + expected ? 0 : 1;
            wrong += library.formatMessage(pattern, args) == expected ? 0 : 1;
            wrong += library.formatMessage(MSG_VALUE, args) == value ? 0 : 1;
            wrong += library.formatMessage(MSG_WRONG, args) == unexpectedBrace ? 0 : 1;
        }
        return wrong;
    };
    std::vector<std::future<int>> threads;
    for (int number = 0; number < threadCount; ++number) {
        threads.push_back(std::async(std::launch::async, render, number));
    }
    start.set_value();
    for (auto& thread : threads) {
        EXPECT_EQ(thread.get(), 0);
    }
}

} // namespace
} // namespace zem::msglib
