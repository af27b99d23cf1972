#include "ProgramTexts.h"
#include "message/Outcome.h"
#include "msglib/MessageLibrary.h"

#include <future>
#include <thread>
#include <vector>

namespace zem::msglib {
namespace {

constexpr int threadCount = 8;

/// Calls `work` with the numbers from 0 on, each in a thread; the threads begin together. Returns
/// the results.
template <class Work>
auto resultsOf(Work work) {
    std::promise<void> start;
    const std::shared_future<void> started = start.get_future().share();
    std::vector<std::future<decltype(work(0))>> futures;
    futures.reserve(threadCount);
    for (int number = 0; number < threadCount; ++number) {
        futures.push_back(std::async(std::launch::async, [=] {
            started.wait();
            return work(number);
        }));
    }
    start.set_value();
    std::vector<decltype(work(0))> results;
    results.reserve(threadCount);
    for (auto& future : futures) {
        results.push_back(future.get());
    }
    return results;
}

// Must be the first test, since the others use the library.
TEST(Threads, ConcurrentFirstCallsReturnOneInstance) {
    for (const MessageLibrary* library :
         resultsOf([](int) { return &MessageLibrary::instance(); })) {
        EXPECT_EQ(library, &MessageLibrary::instance());
    }
}

TEST(Threads, RenderConcurrently) {
    constexpr int rounds = 500;
    const std::string pattern =
        "{0} {0,number,#,##0.0} {0,number,currency} {1,date,long} {1,time} {0,choice,0#a|3#b{0}}";
    const MessageFormat shared(pattern);
    registerProgramTexts();
    const auto render = [&](int number) {
        const MessageLibrary& library = MessageLibrary::instance();
        const Arguments args = {number, 0};
        const std::string expected = library.formatMessage(pattern, args);
        const std::string value = "Value " + std::to_string(number) + "\n";
        int wrong = 0;
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
    EXPECT_EQ(resultsOf(render), std::vector<int>(threadCount, 0));
}

} // namespace
} // namespace zem::msglib
