#include "Bench.h"

#include <pthread.h>
#include <sched.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <vector>

namespace bench {

namespace {

std::vector<int> usableCores() {
    cpu_set_t set;
    CPU_ZERO(&set);
    sched_getaffinity(0, sizeof set, &set);
    std::vector<int> cores;
    for (int core = 0; core < CPU_SETSIZE; ++core) {
        if (CPU_ISSET(core, &set)) {
            cores.push_back(core);
        }
    }
    return cores;
}

} // namespace

void requireText(std::string_view entry, std::string_view actual, std::string_view expected) {
    if (actual != expected) {
        constexpr std::size_t shown = 200;
        std::cerr << entry << " gives \"" << actual.substr(0, shown) << "\" instead of \""
                  << expected.substr(0, shown) << "\"\n";
        std::exit(EXIT_FAILURE);
    }
}

void pinThread(std::size_t index) {
    // Queried once, before the first thread is pinned.
    static const std::vector<int> cores = usableCores();
    if (cores.empty()) {
        return;
    }
    cpu_set_t set;
    CPU_ZERO(&set);
    CPU_SET(cores[std::min(index, cores.size() - 1)], &set);
    pthread_setaffinity_np(pthread_self(), sizeof set, &set);
}

} // namespace bench
