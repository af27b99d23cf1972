#pragma once

#include "Allocations.h"

#include <benchmark/benchmark.h>
#include <boost/any.hpp>

#include <cstddef>
#include <list>
#include <string>
#include <string_view>

namespace bench {

/// Ends the program with words if an entry doesn't give the text that it should.
void requireText(std::string_view entry, std::string_view actual, std::string_view expected);

/// Returns a list of arguments, each of the type that it has here.
template <class... Values>
std::list<boost::any> arguments(const Values&... values) {
    return {boost::any(values)...};
}

/// Times `render`, which puts a text into the string that it is given, in the state that the last
/// call left it.
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

/// Registers an entry, named "workload/rival", whose text nobody checks here.
template <class Render>
void addUnchecked(const std::string& name, Render render) {
    benchmark::RegisterBenchmark(name.c_str(),
                                 [render](benchmark::State& state) { run(state, render); });
}

/// Registers an entry, named "workload/rival", after a look at its text.
template <class Render>
void add(const std::string& name, std::string_view expected, Render render) {
    std::string out;
    render(out);
    requireText(name, out, expected);
    addUnchecked(name, render);
}

/// Keeps the calling thread on one core: the one with this index among those that the program may
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
