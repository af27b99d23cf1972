#pragma once

#include "Allocations.h"

#include <benchmark/benchmark.h>
#include <boost/any.hpp>

#include <cstddef>
#include <list>
#include <string>
#include <string_view>

namespace bench {

/// Ends the program with a message if the text of an entry isn't the expected one.
void requireText(std::string_view entry, std::string_view actual, std::string_view expected);

/// Returns a list of arguments, each with its own type.
template <class... Values>
std::list<boost::any> arguments(const Values&... values) {
    return {boost::any(values)...};
}

/// Times `render`, which replaces the contents of the string that it is given. The string is reused
/// from call to call.
template <class Render>
void run(benchmark::State& state, const Render& render) {
    std::string out;
    render(out);
    const std::size_t before = allocations();
    for ([[maybe_unused]] auto step : state) {
        render(out);
        benchmark::DoNotOptimize(out.data());
        benchmark::ClobberMemory();
    }
    state.counters["allocations"] = benchmark::Counter(static_cast<double>(allocations() - before),
                                                       benchmark::Counter::kAvgIterations);
}

/// Registers an entry, named "workload/rival", without checking its text.
template <class Render>
void addUnchecked(const std::string& name, Render render) {
    benchmark::RegisterBenchmark(name.c_str(),
                                 [render](benchmark::State& state) { run(state, render); });
}

/// Registers an entry, named "workload/rival", and checks its text.
template <class Render>
void add(const std::string& name, std::string_view expected, Render render) {
    std::string out;
    render(out);
    requireText(name, out, expected);
    addUnchecked(name, render);
}

/// Pins the calling thread to one core: the one with this index among those that the program may
/// use, or the last one.
void pinThread(std::size_t index);

/// @{
/// Register the entries of a group of workloads.
void addTextWorkloads();
void addLongWorkloads();
void addNumberWorkloads();
void addChoiceAndDateWorkloads();
void addCatalogueWorkload();
void addThreadWorkload();
/// @}

} // namespace bench
