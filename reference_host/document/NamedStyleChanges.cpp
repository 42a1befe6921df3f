#include "reference_host/document/NamedStyleChanges.h"

#include "reference_host/style_model/StyleHosting.h"

#include <utility>

namespace ReferenceHost
{

NamedStyleAddition::NamedStyleAddition(NamedStyleSheet& target, IStyleJournal& itsJournal,
                                       const OvxStringT& itsName, std::unique_ptr<Styles::Style> newStyle)
    : sheet(target),
      journal(itsJournal),
      name(itsName),
      place(target.GetNames().size()),
      style(std::move(newStyle))
{
}

void NamedStyleAddition::Redo()
{
    SetJournal(*sheet.InsertAt(place, name, std::move(style)), &journal);
}

void NamedStyleAddition::Undo()
{
    style = sheet.TakeOut(name);
    SetJournal(*style, nullptr);
}

NamedStyleRenaming::NamedStyleRenaming(NamedStyleSheet& target, StyleAppearances& appearanceTarget,
                                       const OvxStringT& from, const OvxStringT& to)
    : sheet(target), appearances(appearanceTarget), oldName(from), newName(to)
{
}

void NamedStyleRenaming::Redo()
{
    oldAppearance = appearances[oldName];
    appearances[newName] = {OvxStringT(), oldAppearance.isHidden};
    appearances.erase(oldName);
    sheet.Rename(oldName, newName);
}

void NamedStyleRenaming::Undo()
{
    appearances[oldName] = oldAppearance;
    appearances.erase(newName);
    sheet.Rename(newName, oldName);
}

} // namespace ReferenceHost
