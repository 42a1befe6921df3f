#include "bench/edit/LibraryEdit.h"

#include "bench/edit/EditWork.h"
#include "host/utils/Any.h"
#include "reference_host/services/Idle.h"

namespace Bench
{

LibraryEdit::LibraryEdit(const StyleTree& tree) : document(tree)
{
    document.SelectObjects();
}

// The idle step, here and below, delivers what panels are told of the change.
void LibraryEdit::Write()
{
    document.GetPanel().WriteTarget(document.Keys()[kEditedProperty], OvxUtils::Any(kEditedValue), nullptr,
                                    nullptr);
    ReferenceHost::RunIdle();
}

void LibraryEdit::Undo()
{
    document.GetHistory().Undo();
    ReferenceHost::RunIdle();
}

void LibraryEdit::Redo()
{
    document.GetHistory().Redo();
    ReferenceHost::RunIdle();
}

// A small step takes the place of what could be redone.
void LibraryEdit::Forget()
{
    Undo();
    document.ChangeDefault();
    Undo();
}

double LibraryEdit::GetSample()
{
    return Sample(document.CountObjects(), document.GetHistory().GetStepCount(),
                  [this](std::size_t object)
                  { return document.GetValue(object, document.Keys()[kEditedProperty]); });
}

} // namespace Bench
