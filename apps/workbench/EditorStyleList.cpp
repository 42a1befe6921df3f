// The list of styles of a panel: what it holds, and what picking from it does to the targets.

#include "apps/workbench/EditorWorkings.h"
#include "apps/workbench/PanelDialogs.h"
#include "apps/workbench/QuotedNames.h"
#include "apps/workbench/SettledAnswers.h"
#include "host/utils/Utf8.h"

#include <algorithm>
#include <string>
#include <utility>

namespace Workbench
{
namespace
{

/// An entry that a pick is about, and how the dialog is answered that it may lead to.
struct PickedEntry
{
    StyleListEntry entry;
    OvxStringT name; ///< What is picked, for people; empty for no style.
};

class Picker
{
public:
    Picker(Editor::Workings& itsWorkings, const RowPlace& itsPlace, SettledAnswers& itsAnswers)
        : workings(itsWorkings),
          place(itsPlace),
          answers(itsAnswers),
          main(ReadStyleList(itsPlace.GetBoundNames(), StyleListPart::Main))
    {
    }

    PickedEntry operator()(const PickNone&) const { return {Find(main, 0), {}}; }

    PickedEntry operator()(const PickById& pick) const
    {
        const StyleListEntry entry = Find(main, pick.id);
        return {entry, entry.styleName};
    }

    PickedEntry operator()(const PickByMoreId& pick) const
    {
        const StyleListEntry entry = Find(ReadStyleList(place.GetBoundNames(), StyleListPart::More), pick.id);
        answers.SettleStyle(pick.id);
        return {entry, entry.styleName};
    }

    PickedEntry operator()(const PickByName& pick)
    {
        const OvxStringT escaped = EscapeForMenu(pick.name);
        for (const StyleListEntry& entry : main.entries)
        {
            if (entry.id != 0 && !entry.leadsToDialog && entry.styleName == escaped)
                return {entry, pick.name};
        }
        if (!IsFurther(pick.name))
            Refuse(pick.name);
        answers.SettleStyle(pick.name);
        return {main.entries.back(), pick.name};
    }

private:
    /// Looks into the list of further styles, and builds the main list again, whose ids are picked.
    [[nodiscard]] bool IsFurther(const OvxStringT& name)
    {
        if (!main.hasMore)
            return false;
        const StyleList more = ReadStyleList(place.GetBoundNames(), StyleListPart::More);
        main = ReadStyleList(place.GetBoundNames(), StyleListPart::Main);
        return std::any_of(more.entries.begin(), more.entries.end(),
                           [&](const StyleListEntry& entry) { return entry.styleName == name; });
    }

    [[nodiscard]] StyleListEntry Find(const StyleList& list, unsigned id) const
    {
        const auto found = std::find_if(list.entries.begin(), list.entries.end(),
                                        [&](const StyleListEntry& entry) { return entry.id == id; });
        if (found != list.entries.end())
            return *found;
        std::string expected = "nothing, as it is empty";
        if (!list.entries.empty())
            expected = "one from " + std::to_string(list.entries.front().id) + " to " +
                       std::to_string(list.entries.back().id);
        throw UsageError("the list of the panel " + OvxUtils::ToUtf8(place.GetName()) + " has no id " +
                         std::to_string(id) + "; expected " + expected);
    }

    [[noreturn]] void Refuse(const OvxStringT& name) const
    {
        const OvxStringT category = workings.session.GetStyles().CategoryOf(name);
        const OvxStringT& ours = place.panel->GetDescription().category;
        const OvxStringT sheet = workings.session.GetStyles().SheetOf(name);
        if (!sheet.empty())
            throw EditError(Quoted(name) + " cannot be picked: it comes from the style sheet " +
                            Quoted(sheet) + ", and panels list the drawing's own styles only");
        if (category == ours)
            throw EditError(Quoted(name) + " cannot be picked on " +
                            OvxUtils::ToUtf8(workings.selection.selector) +
                            ": it is, or inherits from, the first target, which would inherit from itself");
        std::vector<OvxStringT> names;
        for (const OvxStringT& each : workings.session.GetStyles().GetStyleNames())
        {
            if (workings.session.GetStyles().CategoryOf(each) == ours)
                names.push_back(each);
        }
        throw UsageError(
            (category.empty() ? "there is no style " + Quoted(name)
                              : "the style " + Quoted(name) + " is one for " + OvxUtils::ToUtf8(category)) +
            "; expected " +
            (names.empty() ? "nothing, as the panel " + OvxUtils::ToUtf8(place.GetName()) + " has no styles"
                           : "one of " + QuotedList(names)));
    }

    Editor::Workings& workings;
    const RowPlace& place;
    SettledAnswers& answers;
    StyleList main;
};

/// What the targets of a panel inherit from, and what the objects do that they belong to: text follows its
/// object, but not before the step is closed.
struct Parents
{
    std::vector<OvxStringT> ofTargets;
    std::vector<OvxStringT> ofObjects; ///< Empty where the targets are no text.

    friend bool operator==(const Parents&, const Parents&) = default;
};

Parents ReadParents(const Editor::Workings& workings, const Panel& panel)
{
    const TargetHandover& styles = workings.session.GetStyles();
    Parents parents{styles.ParentOfEachTarget(panel.GetDataSource()), {}};
    PanelDescription ofObjects = panel.GetDescription();
    if (std::exchange(ofObjects.targets, TargetKind::Objects) == TargetKind::Objects)
        return parents;
    styles.HandIn(panel.GetDataSource(), ofObjects, workings.selection);
    parents.ofObjects = styles.ParentOfEachTarget(panel.GetDataSource());
    styles.HandIn(panel.GetDataSource(), panel.GetDescription(), workings.selection);
    return parents;
}

/// Why picking an entry left every target with the parent that it had.
std::string WhyNothing(const Editor::Workings& workings, const PickedEntry& picked,
                       const OvxStringT& firstParent, DialogEnd dialogEnd)
{
    if (workings.selection.scope == SelectorScope::Defaults)
        return "default styles inherit from nothing";
    if (dialogEnd == DialogEnd::GivenUp)
        return "no style was chosen";
    if (picked.name.empty() && !firstParent.empty())
        return "the first target inherits from " + Quoted(firstParent) +
               " as a whole, and from no style that this panel lists";
    if (picked.name.empty())
        return "the first target inherits from no style";
    if (picked.entry.styleName == firstParent || picked.name == firstParent)
        return "the first target inherits from it already, and the list compares with that one";
    if (OvxStringViewT(picked.entry.styleName).find(L'&') != OvxStringViewT::npos)
        return "its name holds \"&\", which the list doubles, and no style has the doubled name";
    const TargetHandover& styles = workings.session.GetStyles();
    const std::vector<OvxStringT> ancestors = styles.AncestorsOf(picked.name);
    const OvxStringT& edited = workings.selection.styleName;
    if (!edited.empty() &&
        (picked.name == edited || std::find(ancestors.begin(), ancestors.end(), edited) != ancestors.end()))
        return "it is, or inherits from, the style that is selected, which would inherit from itself";
    return "the drawing does not let the selection inherit from it";
}

} // namespace

StyleList Editor::ListStyles(const OvxStringT& panel, StyleListPart part)
{
    const RowPlace place = FindPanel(workings->session.GetPanels(), panel);
    workings->NeedTargets();
    StyleList list = ReadStyleList(place.GetBoundNames(), StyleListPart::Main);
    return part == StyleListPart::Main ? list : ReadStyleList(place.GetBoundNames(), part);
}

Restyled Editor::Restyle(const OvxStringT& panel, const StylePick& pick)
{
    const RowPlace place = FindPanel(workings->session.GetPanels(), panel);
    workings->NeedTargets();
    workings->DemandTargets(place);

    PanelDialogs& dialogs = workings->session.GetDialogs();
    SettledAnswers answers(dialogs.GetAnswers());
    const AnswersInPlace inPlace(dialogs, &answers);
    const PickedEntry picked = std::visit(Picker(*workings, place, answers), pick);
    const Parents before = ReadParents(*workings, *place.panel);
    Parents after;
    const auto restyle = [&]
    {
        static_cast<void>(dialogs.TakeLastEnd());
        dialogs.PickStyle(*place.panel, picked.entry);
        after = ReadParents(*workings, *place.panel);
        if (after == before)
            throw EditError(OvxUtils::ToUtf8(place.GetName()) + " stays as it is on " +
                            OvxUtils::ToUtf8(workings->selection.selector) + " when " +
                            (picked.name.empty() ? "no style" : Quoted(picked.name)) + " is picked: " +
                            WhyNothing(*workings, picked, before.ofTargets.front(), dialogs.TakeLastEnd()));
    };
    workings->Perform(NameStep(picked.name.empty() ? kRemoveStyleStep : kRestyleStep, picked.name), {place},
                      restyle);
    const bool haveObjectsChanged = after.ofObjects != before.ofObjects;
    return {haveObjectsChanged ? after.ofObjects.front() : after.ofTargets.front(),
            picked.name.empty() && before.ofTargets.size() > 1};
}

} // namespace Workbench
