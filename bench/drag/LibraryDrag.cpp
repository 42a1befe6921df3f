#include "bench/drag/LibraryDrag.h"

#include "host/utils/Any.h"
#include "reference_host/services/Idle.h"

namespace Bench
{

LibraryDrag::LibraryDrag(Dragged itsDragged)
    : document(StyleTree(kDraggedObjects, Values::Hashed)), dragged(itsDragged)
{
    if (dragged == Dragged::Objects)
        document.SelectObjects();
    else
        document.SelectDefaults();
}

// The idle step after each write is what lets panels show it while the drag goes on.
void LibraryDrag::Drag(std::size_t writes)
{
    StylePanel& panel = document.GetPanel();
    panel.StartGroupModify();
    for (std::size_t write = 1; write <= writes; ++write)
    {
        panel.WriteTarget(document.Keys()[kDraggedProperty], OvxUtils::Any(DraggedValue(write)), nullptr,
                          nullptr);
        ReferenceHost::RunIdle();
    }
    panel.EndGroupModify(true);
    ReferenceHost::RunIdle();
}

void LibraryDrag::Undo()
{
    document.GetHistory().Undo();
    ReferenceHost::RunIdle();
}

void LibraryDrag::Forget()
{
    document.ChangeDefault();
    Undo();
}

double LibraryDrag::GetSample()
{
    const Styles::PropertyKey key = document.Keys()[kDraggedProperty];
    if (dragged == Dragged::Defaults)
        return document.GetDefault(key);
    double sum = 0.0;
    for (std::size_t object = 0; object < kDraggedObjects; ++object)
        sum += document.GetValue(object, key);
    return sum;
}

} // namespace Bench
