// A panel gets other targets, by itself and tied to two more that have as many.

#include "bench/harness/Work.h"
#include "bench/harness/Works.h"
#include "bench/targets/CopiedTargets.h"
#include "bench/targets/LibraryTargets.h"

namespace Bench
{

namespace
{

enum class Siblings
{
    None,
    Two
};

template <class Contestant>
std::function<void(benchmark::State&)> SettingTargets(Siblings siblings)
{
    return [siblings](benchmark::State& state)
    {
        Contestant contestant(StyleTree(static_cast<std::size_t>(state.range(0)), Values::Hashed));
        if (siblings == Siblings::Two)
            contestant.TieSiblings();
        Measure(state, [&] { return contestant.SetTargets(); });
    };
}

void AddTargets(std::string_view name, Siblings siblings)
{
    AddWork(name, {1, 10, 100, 1'000, 10'000, 100'000},
            {{"library", SettingTargets<LibraryTargets>(siblings)},
             {"floor", SettingTargets<CopiedTargets>(siblings)}});
}

} // namespace

void AddTargetsWorks()
{
    AddTargets("targets_alone", Siblings::None);
    AddTargets("targets_siblings", Siblings::Two);
}

} // namespace Bench
