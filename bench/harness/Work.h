#pragma once

#include "bench/harness/AllocationCount.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

namespace Bench
{

/// One of those that do a work: the library, or what people would take instead.
struct Contender
{
    std::string_view name; ///< "library", "floor", "floor_calls", "plain_map", "qt", "gobject" or "pugixml".
    std::function<void(benchmark::State&)> run; ///< Sets up for `state.range(0)` and calls Measure() once.
};

/// Registers the benchmarks "WORK/CONTENDER/SIZE". Those of one size stand beside each other, so that a pass
/// over all of them compares contenders under the same conditions.
void AddWork(std::string_view work, std::initializer_list<std::int64_t> sizes,
             std::initializer_list<Contender> contenders);

/// Whether the process runs under the instrument that counts instructions.
[[nodiscard]] bool AreInstructionsCounted();

/// Tells that instrument where one operation begins and ends.
class CountedInstructions
{
public:
    /// `name` is that of the benchmark.
    explicit CountedInstructions(std::string name);
    CountedInstructions(const CountedInstructions&) = delete;
    CountedInstructions& operator=(const CountedInstructions&) = delete;
    ~CountedInstructions();

private:
    std::string name;
};

/// The name of the benchmark that runs.
[[nodiscard]] const std::string& RunningBenchmark();

/// Reports, for one run of `operation` that is not timed: "checksum", "allocations", "bytes" (all that was
/// asked for), "kept" (what was taken and not given back) and "peak" (the most at once beyond what was there
/// before). `prepare` goes before each run and does not count.
template <class Prepare, class Operation>
void Count(benchmark::State& state, Prepare&& prepare, Operation&& operation)
{
    prepare();
    RestartPeak();
    const AllocationCount before = CountAllocations();
    const auto checksum = static_cast<double>(operation());
    const AllocationCount after = CountAllocations();
    if (AreInstructionsCounted())
    {
        prepare();
        const CountedInstructions counted(RunningBenchmark());
        benchmark::DoNotOptimize(operation());
    }
    state.counters["checksum"] = checksum;
    state.counters["allocations"] = static_cast<double>(after.allocations - before.allocations);
    state.counters["bytes"] = static_cast<double>(after.bytes - before.bytes);
    state.counters["kept"] = static_cast<double>(after.live - before.live);
    state.counters["peak"] = static_cast<double>(after.peak - before.live);
}

/// Times `operation`, which does the whole work once, can be repeated and returns its checksum (a number),
/// and reports what Count() does.
template <class Operation>
void Measure(benchmark::State& state, Operation&& operation)
{
    benchmark::DoNotOptimize(operation());
    for (auto _ : state)
        benchmark::DoNotOptimize(operation());
    Count(
        state, [] {}, operation);
}

/// The same for an operation that needs something new each time: `prepare` makes it, and is not timed. Only
/// for operations that take far longer than reading a clock.
template <class Prepare, class Operation>
void MeasureFresh(benchmark::State& state, Prepare&& prepare, Operation&& operation)
{
    for (auto _ : state)
    {
        state.PauseTiming();
        prepare();
        state.ResumeTiming();
        benchmark::DoNotOptimize(operation());
    }
    Count(state, prepare, operation);
}

} // namespace Bench
