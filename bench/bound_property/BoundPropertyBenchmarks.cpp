// One bound number of a panel, read and written by its name: looked up once and kept, or by its text each
// time.

#include "bench/bound_property/GObjectOutline.h"
#include "bench/bound_property/LibraryOutline.h"
#include "bench/bound_property/QtOutline.h"
#include "bench/harness/Work.h"
#include "bench/harness/Works.h"

namespace Bench
{

namespace
{

constexpr int kValue = 1'234;

template <class Contestant>
struct ReadResolved
{
    static int Run(Contestant& outline) { return outline.ReadResolved(); }
};

template <class Contestant>
struct ReadByText
{
    static int Run(Contestant& outline) { return outline.ReadByText(); }
};

template <class Contestant>
struct WriteResolved
{
    static int Run(Contestant& outline)
    {
        outline.WriteResolved(kValue);
        return kValue;
    }
};

template <class Contestant>
struct WriteByText
{
    static int Run(Contestant& outline)
    {
        outline.WriteByText(kValue);
        return kValue;
    }
};

template <template <class> class Access, class Contestant>
void Accessing(benchmark::State& state)
{
    Contestant outline;
    outline.WriteResolved(kValue);
    Measure(state, [&outline] { return Access<Contestant>::Run(outline); });
    // What was written is there, too.
    state.counters["checksum"] = state.counters["checksum"] + outline.ReadByText();
}

template <template <class> class Access>
void AddAccess(std::string_view name)
{
    AddWork(name, {1},
            {{"library", Accessing<Access, LibraryOutline>},
             {"qt", Accessing<Access, QtOutline>},
             {"gobject", Accessing<Access, GObjectOutline>}});
}

} // namespace

void AddBoundPropertyWorks()
{
    AddAccess<ReadResolved>("bound_resolved_read");
    AddAccess<WriteResolved>("bound_resolved_write");
    AddAccess<ReadByText>("bound_text_read");
    AddAccess<WriteByText>("bound_text_write");
}

} // namespace Bench
