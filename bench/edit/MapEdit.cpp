#include "bench/edit/MapEdit.h"

#include "bench/edit/EditWork.h"

namespace Bench
{

void MapEdit::Write()
{
    const std::string name = StyleTree::NameOf(kEditedProperty);
    steps.resize(done);
    Step& step = steps.emplace_back();
    step.reserve(map.objects.size());
    for (MapTree::MapStyle* object : map.objects)
    {
        const auto [place, isNew] = object->values.try_emplace(name, kEditedValue);
        const auto before = isNew ? std::nullopt : std::optional(place->second);
        place->second = kEditedValue;
        step.push_back({object, name, before, kEditedValue});
    }
    ++done;
}

void MapEdit::Undo()
{
    for (const Change& change : steps[--done])
    {
        if (change.before)
            change.style->values[change.name] = *change.before;
        else
            change.style->values.erase(change.name);
    }
}

void MapEdit::Redo()
{
    for (const Change& change : steps[done++])
        change.style->values[change.name] = change.after;
}

void MapEdit::Forget()
{
    if (done == 0)
        return;
    Undo();
    steps.resize(done);
}

double MapEdit::GetSample() const
{
    const std::string name = StyleTree::NameOf(kEditedProperty);
    return Sample(map.objects.size(), done,
                  [&](std::size_t object) { return MapTree::Effective(map.objects[object], name); });
}

} // namespace Bench
