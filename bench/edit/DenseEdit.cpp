#include "bench/edit/DenseEdit.h"

#include "bench/edit/EditWork.h"

#include <utility>

namespace Bench
{

void DenseEdit::Write()
{
    steps.resize(done);
    Step& step = steps.emplace_back();
    step.property = kEditedProperty;
    step.changes.reserve(dense.styles.size() - dense.firstObject);
    for (std::size_t style = dense.firstObject; style < dense.styles.size(); ++style)
        step.changes.push_back({static_cast<std::uint32_t>(style), true, kEditedValue});
    Exchange(step);
    ++done;
}

void DenseEdit::Undo()
{
    Exchange(steps[--done]);
}

void DenseEdit::Redo()
{
    Exchange(steps[done++]);
}

void DenseEdit::Exchange(Step& step)
{
    const std::uint64_t bit = std::uint64_t{1} << step.property;
    for (Change& change : step.changes)
    {
        DenseTree::DenseStyle& style = dense.styles[change.style];
        const bool wasSet = (style.present & bit) != 0;
        style.present = change.isSet ? style.present | bit : style.present & ~bit;
        change.isSet = wasSet;
        std::swap(style.values[step.property], change.value);
    }
}

void DenseEdit::Forget()
{
    if (done == 0)
        return;
    Undo();
    steps.resize(done);
}

double DenseEdit::GetSample() const
{
    return Sample(dense.styles.size() - dense.firstObject, done,
                  [this](std::size_t object)
                  { return dense.Effective(dense.firstObject + object, kEditedProperty); });
}

} // namespace Bench
