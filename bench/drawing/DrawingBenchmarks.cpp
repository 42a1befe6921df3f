// A drawing of many shapes: it is opened, all shapes are inspected as one selection, and it is saved after
// one edit. Beside each stands what parsing the same file takes.

#include "bench/drawing/DrawingScratch.h"
#include "bench/drawing/LibraryDrawing.h"
#include "bench/drawing/ParsedDrawing.h"
#include "bench/harness/Work.h"
#include "bench/harness/Works.h"

namespace Bench
{

namespace
{

using Step = void (*)(LibraryDrawing& drawing);
using MeasuredStep = std::size_t (*)(LibraryDrawing& drawing);

/// Measures `work` with a new drawing each time; `prepare` goes before and does not count.
std::function<void(benchmark::State&)> InWorkbench(Step prepare, MeasuredStep work)
{
    return [=](benchmark::State& state)
    {
        LibraryDrawing drawing(static_cast<std::size_t>(state.range(0)));
        MeasureFresh(
            state,
            [&]
            {
                drawing.Close();
                prepare(drawing);
            },
            [&] { return work(drawing); });
        state.counters["file_bytes"] = static_cast<double>(drawing.GetFileSize());
    };
}

void OpenAndBegin(LibraryDrawing& drawing)
{
    drawing.Open();
    drawing.Begin();
}

void OpenAndEditOne(LibraryDrawing& drawing)
{
    OpenAndBegin(drawing);
    drawing.Inspect();
    drawing.EditOne();
}

void OpenAndEditAll(LibraryDrawing& drawing)
{
    OpenAndBegin(drawing);
    drawing.Inspect();
    drawing.EditAll();
}

std::size_t DoAll(LibraryDrawing& drawing)
{
    OpenAndEditOne(drawing);
    const std::size_t shapes = drawing.Save();
    drawing.Close();
    return shapes;
}

void Parse(benchmark::State& state)
{
    const DrawingScratch scratch(static_cast<std::size_t>(state.range(0)));
    Measure(state, [&] { return CountShapes(scratch.GetDrawing()); });
}

void AddDrawing(std::string_view name, Step prepare, MeasuredStep work)
{
    AddWork(name, {10, 100, 1'000, 10'000, 100'000},
            {{"library", InWorkbench(prepare, work)}, {"pugixml", Parse}});
}

} // namespace

void AddDrawingWorks()
{
    const Step nothing = [](LibraryDrawing&) {};
    const MeasuredStep open = [](LibraryDrawing& drawing) { return drawing.Open(); };
    const MeasuredStep inspect = [](LibraryDrawing& drawing) { return drawing.Inspect(); };
    const MeasuredStep save = [](LibraryDrawing& drawing) { return drawing.Save(); };
    AddDrawing("drawing_open", nothing, open);
    AddDrawing("drawing_inspect", OpenAndBegin, inspect);
    AddDrawing("drawing_save", OpenAndEditOne, save);
    AddDrawing("drawing_save_all", OpenAndEditAll, save);
    AddDrawing("drawing_whole", nothing, DoAll);
}

} // namespace Bench
