#include "reference_host/document/PaletteChange.h"

#include <algorithm>
#include <utility>

namespace ReferenceHost
{

PaletteChange::PaletteChange(std::vector<PaletteEntry>& target, PaletteEntry newEntry)
    : palette(target),
      entry(std::move(newEntry)),
      place(static_cast<std::size_t>(std::ranges::find(target, entry.name, &PaletteEntry::name) -
                                     target.begin()))
{
    if (place < target.size())
        before = target[place].look;
}

void PaletteChange::Redo()
{
    if (before)
        palette[place].look = entry.look;
    else
        palette.push_back(entry);
}

void PaletteChange::Undo()
{
    if (before)
        palette[place].look = *before;
    else
        palette.pop_back();
}

} // namespace ReferenceHost
