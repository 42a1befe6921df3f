// The list of styles that may become the parent of an edited one.

#include "bench/harness/Work.h"
#include "bench/harness/Works.h"
#include "bench/style_list/LibraryStyleList.h"
#include "bench/style_list/QtStyleList.h"

namespace Bench
{

namespace
{

template <class Contestant, double (Contestant::*Opens)()>
void Opening(benchmark::State& state)
{
    Contestant contestant(NamedStyles(static_cast<std::size_t>(state.range(0))));
    Measure(state, [&contestant] { return (contestant.*Opens)(); });
}

template <class Contestant>
void Reopening(benchmark::State& state)
{
    constexpr int kTimes = 10'000;
    Contestant contestant(NamedStyles(static_cast<std::size_t>(state.range(0))));
    Measure(state,
            [&contestant]
            {
                double checksum = 0.0;
                for (int time = 0; time < kTimes; ++time)
                    checksum = contestant.OpenWhole();
                return checksum;
            });
}

} // namespace

void AddStyleListWorks()
{
    AddWork("style_list", {10, 100, 1'000, 10'000, 100'000},
            {{"library", Opening<LibraryStyleList, &LibraryStyleList::Open>},
             {"qt", Opening<QtStyleList, &QtStyleList::Open>}});
    AddWork("style_list_whole", {10, 100, 1'000, 10'000, 100'000},
            {{"library", Opening<LibraryStyleList, &LibraryStyleList::OpenWhole>},
             {"qt", Opening<QtStyleList, &QtStyleList::OpenWhole>}});
    AddWork("style_list_reopened", {100},
            {{"library", Reopening<LibraryStyleList>}, {"qt", Reopening<QtStyleList>}});
}

} // namespace Bench
