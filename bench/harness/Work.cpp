#include "bench/harness/Work.h"

#include "apps/workbench/LibraryIntroduction.h"
#include "reference_host/services/Application.h"

#include <utility>
#include <valgrind/callgrind.h>

namespace Bench
{

namespace
{

std::string& RunningName()
{
    static std::string name;
    return name;
}

} // namespace

void AddWork(std::string_view work, std::initializer_list<std::int64_t> sizes,
             std::initializer_list<Contender> contenders)
{
    for (const std::int64_t size : sizes)
    {
        for (const Contender& contender : contenders)
        {
            const std::string name = std::string(work) + "/" + std::string(contender.name);
            benchmark::RegisterBenchmark(name.c_str(),
                                         [run = contender.run, name](benchmark::State& state)
                                         {
                                             RunningName() = name + "/" + std::to_string(state.range(0));
                                             // One for each: a session takes its place while it lasts.
                                             ReferenceHost::Application application;
                                             const Workbench::LibraryIntroduction introduction(application);
                                             run(state);
                                         })
                ->Arg(size);
        }
    }
}

const std::string& RunningBenchmark()
{
    return RunningName();
}

bool AreInstructionsCounted()
{
    return RUNNING_ON_VALGRIND != 0;
}

// Instrumentation is started and ended too: a run that begins without it sets up ten times faster.
CountedInstructions::CountedInstructions(std::string benchmark) : name(std::move(benchmark))
{
    CALLGRIND_START_INSTRUMENTATION;
    CALLGRIND_ZERO_STATS;
    CALLGRIND_TOGGLE_COLLECT;
}

CountedInstructions::~CountedInstructions()
{
    CALLGRIND_TOGGLE_COLLECT;
    CALLGRIND_DUMP_STATS_AT(name.c_str());
    CALLGRIND_STOP_INSTRUMENTATION;
}

} // namespace Bench
