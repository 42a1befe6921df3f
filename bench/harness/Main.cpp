// Runs the benchmarks that the command line of Google Benchmark chooses.

#include "bench/harness/Works.h"

#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;

    Bench::AddBoundPropertyWorks();
    Bench::AddDragWorks();
    Bench::AddDrawingWorks();
    Bench::AddEditWorks();
    Bench::AddNotificationWorks();
    Bench::AddRefreshWorks();
    Bench::AddStyleListWorks();
    Bench::AddTargetsWorks();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
