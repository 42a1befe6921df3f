// A drag: many writes to the same styles as one step, which is then undone. The size is the number of
// writes; what is kept must not grow with it.

#include "bench/drag/DragWork.h"
#include "bench/drag/LibraryDrag.h"
#include "bench/drag/QtDrag.h"
#include "bench/harness/Work.h"
#include "bench/harness/Works.h"

namespace Bench
{

namespace
{

template <class Contestant>
std::function<void(benchmark::State&)> Dragging(Dragged dragged)
{
    return [dragged](benchmark::State& state)
    {
        Contestant contestant(dragged);
        MeasureFresh(
            state, [&] { contestant.Forget(); },
            [&]
            {
                contestant.Drag(static_cast<std::size_t>(state.range(0)));
                const double dropped = contestant.GetSample();
                contestant.Undo();
                return dropped + 3.0 * contestant.GetSample();
            });
    };
}

void AddDrag(std::string_view name, Dragged dragged)
{
    AddWork(name, {200, 2'000},
            {{"library", Dragging<LibraryDrag>(dragged)}, {"qt", Dragging<QtDrag>(dragged)}});
}

} // namespace

void AddDragWorks()
{
    AddDrag("drag_objects", Dragged::Objects);
    AddDrag("drag_defaults", Dragged::Defaults);
}

} // namespace Bench
