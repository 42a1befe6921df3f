// One property is written to all objects as one step that can be undone; in the second work it is undone and
// redone as well.

#include "bench/edit/DenseEdit.h"
#include "bench/edit/LibraryEdit.h"
#include "bench/edit/MapEdit.h"
#include "bench/edit/QtEdit.h"
#include "bench/harness/Work.h"
#include "bench/harness/Works.h"

namespace Bench
{

namespace
{

StyleTree TreeOf(const benchmark::State& state)
{
    return {static_cast<std::size_t>(state.range(0)), Values::Hashed};
}

template <class Contestant>
void Writing(benchmark::State& state)
{
    Contestant contestant(TreeOf(state));
    MeasureFresh(
        state, [&] { contestant.Forget(); },
        [&]
        {
            contestant.Write();
            return contestant.GetSample();
        });
}

template <class Contestant>
void WritingBackAndForth(benchmark::State& state)
{
    Contestant contestant(TreeOf(state));
    MeasureFresh(
        state, [&] { contestant.Forget(); },
        [&]
        {
            contestant.Write();
            const double written = contestant.GetSample();
            contestant.Undo();
            const double undone = contestant.GetSample();
            contestant.Redo();
            return written + 3.0 * undone + 5.0 * contestant.GetSample();
        });
}

} // namespace

void AddEditWorks()
{
    AddWork("edit_write", {1, 10, 100, 1'000, 10'000, 100'000},
            {{"library", Writing<LibraryEdit>},
             {"floor", Writing<DenseEdit>},
             {"plain_map", Writing<MapEdit>},
             {"qt", Writing<QtEdit>}});
    AddWork("edit_undo_redo", {1, 10, 100, 1'000, 10'000, 100'000},
            {{"library", WritingBackAndForth<LibraryEdit>},
             {"floor", WritingBackAndForth<DenseEdit>},
             {"plain_map", WritingBackAndForth<MapEdit>},
             {"qt", WritingBackAndForth<QtEdit>}});
}

} // namespace Bench
