#include "tests/endurance/WorkingDay.h"

#include "apps/workbench/SelectionError.h"

#include <numeric>
#include <utility>
#include <vector>

using Workbench::Assignment;

namespace
{

const std::vector<OvxStringT> kSelectors = {L"name:A", L"name:B",      L"name:C",       L"name:D",
                                            L"all",    L"defaults",    L"sheet:Accent", L"sheet:Base",
                                            L"all",    L"sheet:Made 1"};

const std::vector<Assignment> kValues = {
    {L"fill.color", L"#112233"},        {L"fill.color", L"palette:Sea"},
    {L"fill.color", L"#abcdef"},        {L"fill.type", L"solid"},
    {L"fill.transparency", L"30%"},     {L"outline.color", L"palette:Sea"},
    {L"outline.width", L"1mm"},         {L"outline.width", L"0.35mm"},
    {L"outline.join", L"round"},        {L"character.size", L"20pt"},
    {L"character.color", L"#445566"},   {L"character.weight", L"bold"},
    {L"paragraph.left-indent", L"5mm"}, {L"paragraph.space-before", L"2mm"},
    {L"style.style", L"Accent"},        {L"style.style", L"Base"}};

const std::vector<OvxStringT> kColourRows = {L"fill.color", L"outline.color"};
const std::vector<OvxStringT> kPanels = {L"style", L"fill", L"outline", L"character", L"paragraph"};
const std::vector<OvxStringT> kPresetPanels = {L"fill", L"outline"};
const std::vector<OvxStringT> kStyleNames = {L"Made 1", L"Made 2", L"Made 3"};
const std::vector<OvxStringT> kPickedNames = {L"Base", L"Accent", L"Made 1", L"Made 2"};
const std::vector<OvxStringT> kPresetNames = {L"Kept 1", L"Kept 2"};
const std::vector<OvxStringT> kColourNames = {L"Sea", L"Sand"};
const std::vector<OvxStringT> kColours = {L"#2a6f97", L"#e9c46a", L"#264653"};

} // namespace

struct WorkingDay::Action
{
    const char* name;
    std::size_t weight; ///< How often it comes, compared with others.
    bool isEdit;        ///< Changes the drawing or the presets.
    void (WorkingDay::*run)();
};

const std::vector<WorkingDay::Action>& WorkingDay::Actions()
{
    static const std::vector<Action> actions = {{"choose", 30, false, &WorkingDay::Choose},
                                                {"set", 60, true, &WorkingDay::Set},
                                                {"clear", 15, true, &WorkingDay::Clear},
                                                {"revert", 15, true, &WorkingDay::Revert},
                                                {"apply to parent", 10, true, &WorkingDay::ApplyToParent},
                                                {"break link", 10, true, &WorkingDay::BreakLink},
                                                {"create style", 5, true, &WorkingDay::CreateStyle},
                                                {"open style", 5, false, &WorkingDay::OpenStyle},
                                                {"restyle", 10, true, &WorkingDay::Restyle},
                                                {"list styles", 10, false, &WorkingDay::ListStyles},
                                                {"keep preset", 2, true, &WorkingDay::KeepPreset},
                                                {"apply preset", 5, true, &WorkingDay::ApplyPreset},
                                                {"drop preset", 1, true, &WorkingDay::DropPreset},
                                                {"define colour", 5, true, &WorkingDay::DefineColour},
                                                {"edit in a group", 5, true, &WorkingDay::EditInAGroup},
                                                {"undo", 20, false, &WorkingDay::Undo},
                                                {"redo", 10, false, &WorkingDay::Redo},
                                                {"look", 2, false, &WorkingDay::Look}};
    return actions;
}

std::vector<std::string> WorkingDay::GetKinds()
{
    std::vector<std::string> kinds;
    for (const Action& action : Actions())
        kinds.emplace_back(action.name);
    return kinds;
}

void WorkingDay::Edit(std::size_t edits)
{
    static const std::size_t weights =
        std::accumulate(Actions().begin(), Actions().end(), std::size_t{0},
                        [](std::size_t sum, const Action& action) { return sum + action.weight; });
    while (edits != 0)
    {
        std::size_t chosen = dice.Below(weights);
        auto action = Actions().begin();
        for (; chosen >= action->weight; ++action)
            chosen -= action->weight;
        try
        {
            (this->*action->run)();
        }
        // Chance asks for what there is not, and for what the drawing does not allow at the moment.
        catch (const Workbench::EditError&)
        {
            continue;
        }
        catch (const Workbench::UsageError&)
        {
            continue;
        }
        catch (const Workbench::SelectionError&)
        {
            continue;
        }
        ++done[action->name];
        if (action->isEdit)
            --edits;
    }
}

void WorkingDay::UndoAll()
{
    while (editor.Undo())
    {
    }
}

void WorkingDay::Choose()
{
    editor.Select(Workbench::ParseSelector(dice.One(kSelectors)));
}

void WorkingDay::Set()
{
    editor.Set({dice.One(kValues)});
}

void WorkingDay::Clear()
{
    editor.Clear({dice.One(kValues).row});
}

void WorkingDay::Revert()
{
    editor.Revert({dice.Percent(50) ? dice.One(kValues).row : dice.One(kPanels)});
}

void WorkingDay::ApplyToParent()
{
    editor.ApplyToParent({dice.Percent(50) ? dice.One(kValues).row : dice.One(kPanels)});
}

void WorkingDay::BreakLink()
{
    editor.BreakLink({dice.One(kColourRows)});
}

void WorkingDay::CreateStyle()
{
    editor.CreateStyle(dice.One(kPanels), dice.One(kStyleNames));
}

void WorkingDay::OpenStyle()
{
    editor.EditStyle(dice.One(kPanels));
}

void WorkingDay::Restyle()
{
    Workbench::StylePick pick = Workbench::PickNone{};
    if (dice.Percent(80))
        pick = Workbench::PickByName{dice.One(kPickedNames)};
    editor.Restyle(dice.One(kPanels), pick);
}

void WorkingDay::ListStyles()
{
    const OvxStringT& panel = dice.One(kPanels);
    const bool hasMore = editor.ListStyles(panel, Workbench::StyleListPart::Main).hasMore;
    if (hasMore)
        static_cast<void>(editor.ListStyles(panel, Workbench::StyleListPart::More));
}

void WorkingDay::KeepPreset()
{
    editor.AddPreset(dice.One(kPresetPanels), dice.One(kPresetNames), true);
}

void WorkingDay::ApplyPreset()
{
    editor.ApplyPreset(dice.One(kPresetPanels), dice.One(kPresetNames));
}

void WorkingDay::DropPreset()
{
    editor.DeletePreset(dice.One(kPresetPanels), dice.One(kPresetNames));
}

void WorkingDay::DefineColour()
{
    editor.DefineColours({{dice.One(kColourNames), dice.One(kColours)}});
}

void WorkingDay::EditInAGroup()
{
    editor.BeginGroup();
    try
    {
        Set();
        Set();
    }
    catch (...)
    {
        editor.EndGroup(false);
        throw;
    }
    editor.EndGroup(dice.Percent(70));
}

void WorkingDay::Undo()
{
    for (std::size_t steps = 1 + dice.Below(5); steps != 0; --steps)
        editor.Undo();
}

void WorkingDay::Redo()
{
    for (std::size_t steps = 1 + dice.Below(5); steps != 0; --steps)
        editor.Redo();
}

void WorkingDay::Look()
{
    static_cast<void>(editor.DescribeChanges());
    for (const OvxStringT& panel : kPresetPanels)
        static_cast<void>(editor.ListPresets(panel));
}
