// Values that are written and taken away, and the colours of the palette.

#include "apps/workbench/EditorWorkings.h"
#include "apps/workbench/QuotedNames.h"
#include "apps/workbench/RowValues.h"
#include "host/utils/Utf8.h"

#include <algorithm>
#include <utility>

namespace Workbench
{
namespace
{

struct RowWrite
{
    RowPlace place;
    OvxUtils::Any value;
};

/// @throws UsageError when the sheet has no whole style of that name.
void DemandWholeStyle(const TargetHandover& styles, const RowPlace& place, const OvxStringT& name)
{
    const OvxStringT category = styles.CategoryOf(name);
    if (category == L"style")
        return;
    std::vector<OvxStringT> names;
    for (const OvxStringT& each : styles.GetStyleNames())
    {
        if (styles.CategoryOf(each) == L"style")
            names.push_back(each);
    }
    throw UsageError("value " + Quoted(name) + " for " + OvxUtils::ToUtf8(place.GetName()) +
                     (category.empty() ? ": there is no such style"
                                       : ": it is a style for " + OvxUtils::ToUtf8(category) + " only") +
                     "; expected one of " + QuotedList(names));
}

/// @throws EditError when a style would inherit from itself.
void DemandNoCycle(const TargetHandover& styles, const Selection& selection, const OvxStringT& parent)
{
    if (selection.scope != SelectorScope::Sheet)
        return;
    const std::vector<OvxStringT> ancestors = styles.AncestorsOf(parent);
    const bool isCycle = parent == selection.styleName || std::find(ancestors.begin(), ancestors.end(),
                                                                    selection.styleName) != ancestors.end();
    if (isCycle)
        throw EditError("the style " + Quoted(selection.styleName) + " cannot inherit from " +
                        Quoted(parent) + ": it would inherit from itself");
}

/// Checks what the name of a parent style is about to be.
void DemandParent(const Editor::Workings& workings, const RowWrite& write)
{
    if (workings.selection.scope == SelectorScope::Defaults)
        workings.Refuse(write.place, "cannot be set", "and default styles inherit from nothing");
    const auto* name = write.value.TryGet<OvxStringT>();
    if (name == nullptr || name->empty())
        return;
    DemandWholeStyle(workings.session.GetStyles(), write.place, *name);
    DemandNoCycle(workings.session.GetStyles(), workings.selection, *name);
}

void DemandWritable(const Editor::Workings& workings, const RowWrite& write)
{
    workings.DemandTargets(write.place);
    if (!write.place.GetBoundNames().IsWritableProperty(write.place.row->property))
        workings.Refuse(write.place, "cannot be set", "and its panel does not let it be written");
    if (write.place.IsStyleParent())
        DemandParent(workings, write);
}

/// The style source may refuse a parent for reasons of its own.
void DemandTakenParent(const Editor::Workings& workings, const RowWrite& write)
{
    const OvxUtils::Any taken = write.place.GetBoundNames().ReadAny(write.place.row->property);
    const auto* name = write.value.TryGet<OvxStringT>();
    const bool isNone = name == nullptr || name->empty();
    if (isNone ? !taken.IsEmpty() : !(taken == write.value))
        workings.Refuse(
            write.place, "cannot be set",
            "and the drawing did not take this parent: styles of a style sheet cannot be picked, nor "
            "inherit from the drawing's own");
}

void Write(Editor::Workings& workings, const RowWrite& write)
{
    if (workings.group && workings.group->Postpones(*write.place.panel))
    {
        workings.group->Postpone(write.place, write.value);
        return;
    }
    write.place.GetBoundNames().WriteAny(write.place.row->property, write.value);
    if (write.place.IsStyleParent())
        DemandTakenParent(workings, write);
}

void WriteAll(Editor::Workings& workings, OvxStringViewT stepKey, const std::vector<RowWrite>& writes)
{
    workings.NeedTargets();
    std::vector<RowPlace> places;
    for (const RowWrite& write : writes)
    {
        DemandWritable(workings, write);
        places.push_back(write.place);
    }
    const auto writeEach = [&]
    {
        for (const RowWrite& write : writes)
            Write(workings, write);
    };
    workings.Perform(NameStep(stepKey, places), places, writeEach);
}

struct PaletteWrite
{
    OvxStringT name;
    CLR_COLORSPEC::Rgb look;
};

PaletteWrite ParsePaletteWrite(const PaletteAssignment& assignment)
{
    if (assignment.name.empty())
        throw UsageError("a colour of the palette has no name; expected NAME=#rrggbb");
    return {assignment.name,
            ParsePlainColour(OvxStringViewT(L"palette:") + assignment.name, assignment.colour)};
}

void Define(ReferenceHost::Drawing& drawing, const PaletteWrite& write)
{
    drawing.DefinePaletteColour(write.name, write.look);
    if (drawing.FindPaletteColour(write.name) != write.look)
        throw UsageError("no drawing can hold " + Quoted(write.name) +
                         " as the name of a colour; expected a text without control characters");
}

/// A name that the file does not define would mean nothing to whoever opens it. The empty name is that of
/// none.
void DemandDefinedName(const Editor::Workings& workings, const RowPlace& place, const OvxStringT& name)
{
    const TargetHandover& styles = workings.session.GetStyles();
    const auto defined = styles.DefinedNames(place.panel->GetDescription(), *place.row, workings.selection);
    if (!defined || name.empty() || std::find(defined->begin(), defined->end(), name) != defined->end())
        return;
    const OvxStringT sheet = styles.SheetOf(workings.selection.styleName);
    const std::string file = sheet.empty() ? "drawing" : "style sheet " + Quoted(sheet);
    throw UsageError(OvxUtils::ToUtf8(place.GetName()) + ": the " + file + " defines no " + Quoted(name) +
                     "; expected " +
                     (defined->empty() ? "nothing, as it defines none" : QuotedList(*defined)));
}

} // namespace

void Editor::Set(const std::vector<Assignment>& assignments)
{
    std::vector<RowWrite> writes;
    for (const Assignment& assignment : assignments)
    {
        const RowPlace place = FindRow(workings->session.GetPanels(), assignment.row);
        DemandDefinedName(*workings, place, assignment.value);
        writes.push_back({place, ParseRowValue(*place.row, place.GetName(), assignment.value,
                                               workings->session.GetDrawing())});
    }
    WriteAll(*workings, kSetStep, writes);
}

void Editor::Clear(const std::vector<OvxStringT>& rows)
{
    std::vector<RowWrite> writes;
    for (const RowPlace& place : workings->FindRows(rows))
        writes.push_back({place, OvxUtils::Any()});
    WriteAll(*workings, kClearStep, writes);
}

void Editor::DefineColours(const std::vector<PaletteAssignment>& colours)
{
    std::vector<PaletteWrite> writes;
    for (const PaletteAssignment& assignment : colours)
        writes.push_back(ParsePaletteWrite(assignment));
    for (const PaletteWrite& write : writes)
        workings->ledger.NotePalette(write.name);
    const auto define = [&]
    {
        for (const PaletteWrite& write : writes)
            Define(workings->session.GetDrawing(), write);
    };
    const OvxStringT name =
        writes.size() == 1 ? NameStep(kPaletteStep, writes.front().name) : NameStep(kPaletteStep, L"");
    workings->Perform(name, {}, define);
}

} // namespace Workbench
