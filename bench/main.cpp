#include "Bench.h"

int main(int argc, char** argv) {
    bench::pinThread(0);
    bench::addTextWorkloads();
    bench::addLongWorkloads();
    bench::addNumberWorkloads();
    bench::addChoiceAndDateWorkloads();
    bench::addCatalogueWorkload();
    bench::addThreadWorkload();

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    const bool anyRan = benchmark::RunSpecifiedBenchmarks() > 0;
    benchmark::Shutdown();
    return anyRan ? 0 : 1;
}
