#include "Bench.h"

#include <msglib/MessageFormat.h>
#include <msglib/MessageLibrary.h>

namespace bench {

namespace {

using zem::msglib::MessageFormat;
using zem::msglib::MessageLibrary;

constexpr std::string_view text = "Copied 1,234,567 of 98,765,432 bytes.";

template <class Render>
void addThreaded(const std::string& name, Render render) {
    std::string out;
    render(out);
    requireText(name, out, text);
    const auto runPinned = [render](benchmark::State& state) {
        pinThread(static_cast<std::size_t>(state.thread_index()));
        run(state, render);
        state.SetItemsProcessed(state.iterations());
    };
    benchmark::RegisterBenchmark(name.c_str(), runPinned)->Threads(1)->Threads(2)->UseRealTime();
}

} // namespace

void addThreadWorkload() {
    static const std::string pattern = "Copied {0} of {1} bytes.";
    static const std::list<boost::any> list = arguments(1234567, 98765432);
    static const MessageFormat message(pattern);
    addThreaded("threads/one_shot", [](std::string& out) {
        out = MessageLibrary::instance().formatMessage(pattern, list);
    });
    addThreaded("threads/kept", [](std::string& out) {
        out.clear();
        message.format(list, out);
    });
}

} // namespace bench
