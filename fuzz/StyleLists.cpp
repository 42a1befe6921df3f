// The list of styles, with styles of any names: each line of an input is a style, whose first byte chooses
// what it inherits from. The first two bytes of all choose what is selected and what is picked.

#include "apps/workbench/EditError.h"
#include "apps/workbench/StyleList.h"
#include "apps/workbench/UsageError.h"
#include "fuzz/Choices.h"
#include "fuzz/Demand.h"
#include "fuzz/FuzzTarget.h"
#include "fuzz/Workplace.h"
#include "host/style_model/CategoryNames.h"
#include "host/utils/Utf8.h"
#include "reference_host/history/History.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace
{

using Fuzz::Demand;
using Workbench::StyleList;
using Workbench::StyleListEntry;
using Workbench::StyleListPart;

constexpr const wchar_t* kPanel = L"style";
constexpr std::size_t kMostEntries = 19; ///< Eighteen styles, and that there is none.

/// A name of Unicode characters, which is what names from files, terminals and windows are made of.
OvxStringT NameOf(std::string_view bytes)
{
    std::string name = OvxUtils::ToUtf8(Fuzz::WideText(bytes));
    std::erase(name, '\0');
    return OvxUtils::FromUtf8(name);
}

void AddStyles(ReferenceHost::Drawing& drawing, std::string_view lines)
{
    const ReferenceHost::History::Step step(drawing.GetHistory(), L"styles");
    while (!lines.empty())
    {
        Fuzz::Choices choices(Fuzz::TakePart(lines, '\n'));
        const std::vector<OvxStringT>& names = drawing.GetStyleSheet().GetNames();
        const std::size_t parent = choices.Below(names.size() + 1);
        Styles::Style* const inherited =
            parent < names.size() ? drawing.GetStyleSheet().GetStyle(names[parent]) : nullptr;
        Styles::Style* const added = drawing.AddStyle(Styles::StyleCategoryName, NameOf(choices.Rest()));
        if (added != nullptr)
            added->SetParent(inherited);
    }
}

void DemandMainList(const StyleList& list)
{
    Demand(list.entries.size() <= kMostEntries, "the main list is never longer than a menu may be");
    std::size_t checked = 0;
    for (const StyleListEntry& entry : list.entries)
        checked += entry.isChecked ? 1U : 0U;
    Demand(checked <= 1, "at most one style is checked");
}

/// Every style is offered in one of the lists, as its name; but for the target and what inherits from it.
void DemandAllAreListed(Fuzz::Workplace& place, const StyleList& main, const StyleList& more)
{
    std::set<OvxStringT> listed;
    for (const StyleListEntry& entry : main.entries)
        listed.insert(entry.styleName);
    for (const StyleListEntry& entry : more.entries)
        listed.insert(Workbench::EscapeForMenu(entry.styleName));
    const OvxStringT& target = place.GetEditor().GetSelection().styleName;
    const Workbench::TargetHandover& styles = place.GetSession().GetStyles();
    for (const OvxStringT& name : styles.GetStyleNames())
    {
        const std::vector<OvxStringT> ancestors = styles.AncestorsOf(name);
        const bool isOfTarget =
            name == target || std::find(ancestors.begin(), ancestors.end(), target) != ancestors.end();
        Demand(isOfTarget || listed.contains(Workbench::EscapeForMenu(name)),
               "every style is offered: " + OvxUtils::ToUtf8(name));
    }
}

Workbench::StylePick Choose(unsigned number, const StyleList& main, const StyleList& more)
{
    const std::size_t all = main.entries.size() + more.entries.size();
    const std::size_t chosen = all == 0 ? 0 : number % all;
    if (chosen < main.entries.size())
        return Workbench::PickById{main.entries[chosen].id};
    if (chosen < all)
        return Workbench::PickByMoreId{more.entries[chosen - main.entries.size()].id};
    return Workbench::PickNone{};
}

void DemandPick(Fuzz::Workplace& place, const Workbench::StylePick& pick)
{
    const std::string before = place.GetBytes();
    try
    {
        static_cast<void>(place.GetEditor().Restyle(kPanel, pick));
    }
    catch (const Workbench::EditError&)
    {
        Fuzz::DemandEqual(place.GetBytes(), before, "a pick that is refused changes nothing");
    }
    catch (const Workbench::UsageError&)
    {
        Fuzz::DemandEqual(place.GetBytes(), before, "a pick of nothing changes nothing");
    }
}

} // namespace

void Fuzz::RunInput(std::string_view input)
{
    Workplace& place = Workplace::Get();
    Choices choices(input);
    const unsigned selected = choices.Byte();
    const unsigned picked = choices.Byte();
    AddStyles(place.GetSession().GetDrawing(), choices.Rest());
    place.GetEditor().Select(place.GetSelector(selected));
    const StyleList main = place.GetEditor().ListStyles(kPanel, StyleListPart::Main);
    DemandMainList(main);
    const StyleList more = place.GetEditor().ListStyles(kPanel, StyleListPart::More);
    if (place.GetEditor().GetSelection().scope != Workbench::SelectorScope::Defaults)
        DemandAllAreListed(place, main, more);
    DemandPick(place, Choose(picked, main, more));
    place.Restore();
}
