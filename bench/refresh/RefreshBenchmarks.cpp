// The refresh of a whole panel: for each property whether the targets agree, where their values come from,
// and the value where they agree.

#include "bench/harness/Work.h"
#include "bench/harness/Works.h"
#include "bench/refresh/CalledStyles.h"
#include "bench/refresh/DenseStyles.h"
#include "bench/refresh/LibraryRefresh.h"
#include "bench/refresh/MapStyles.h"
#include "bench/refresh/QtStyles.h"

namespace Bench
{

namespace
{

template <class Contestant>
std::function<void(benchmark::State&)> Refreshing(Values values)
{
    return [values](benchmark::State& state)
    {
        const Contestant contestant(StyleTree(static_cast<std::size_t>(state.range(0)), values));
        Measure(state, [&] { return contestant.Refresh(); });
    };
}

void AddRefresh(std::string_view name, Values values)
{
    AddWork(name, {1, 10, 100, 1'000, 10'000, 100'000},
            {{"library", Refreshing<LibraryRefresh>(values)},
             {"floor", Refreshing<DenseStyles>(values)},
             {"floor_calls", Refreshing<CalledStyles>(values)},
             {"plain_map", Refreshing<MapStyles>(values)},
             {"qt", Refreshing<QtStyles>(values)}});
}

} // namespace

void AddRefreshWorks()
{
    AddRefresh("refresh_agreeing", Values::Agreeing);
    AddRefresh("refresh_hashed", Values::Hashed);
}

} // namespace Bench
