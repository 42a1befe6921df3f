#include "apps/workbench/ChangeLedger.h"

#include "apps/workbench/PanelReading.h"
#include "apps/workbench/RowPlace.h"
#include "apps/workbench/SelectionSearch.h"
#include "host/utils/Any.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace Workbench
{
namespace
{

using ReferenceHost::DrawingObject;

/// The id that changes of a target carry.
OvxStringT IdOf(const Selection& single)
{
    return single.scope == SelectorScope::Objects ? single.objects.front()->GetId() : single.selector;
}

/// Where targets stand in a drawing: default styles, the sheet, the objects.
class DrawingOrder
{
public:
    explicit DrawingOrder(Session& session)
    {
        for (const OvxStringT& name : session.GetStyles().GetStyleNames())
            styles.emplace(name.Wide(), styles.size());
        for (const DrawingObject& object : session.GetDrawing().GetObjects())
            objects.emplace(&object, objects.size());
    }

    [[nodiscard]] std::pair<int, std::size_t> PlaceOf(const Selection& single) const
    {
        switch (single.scope)
        {
        case SelectorScope::Defaults:
            return {0, 0};
        case SelectorScope::Sheet:
            break;
        case SelectorScope::Objects:
            return {2, objects.at(single.objects.front())};
        }
        const auto style = styles.find(single.styleName.Wide());
        return {1, style == styles.end() ? styles.size() : style->second};
    }

private:
    std::unordered_map<std::wstring, std::size_t> styles;
    std::unordered_map<const DrawingObject*, std::size_t> objects;
};

ReportValue LookOf(const std::optional<CLR_COLORSPEC::Rgb>& look)
{
    const OvxUtils::Any colour = look ? OvxUtils::Any(CLR_COLORSPEC::FromRgb(*look)) : OvxUtils::Any();
    return ToReportValue(colour).value_or(ReportValue());
}

} // namespace

void ChangeLedger::Note(const Selection& selection, const Panel& panel)
{
    if (!(selection.selector == notedSelector))
        notedPanels.clear();
    notedSelector = selection.selector;
    NeedReaders();
    const std::size_t number = NumberOf(panel);
    if (!notedPanels.insert(number).second)
        return;
    for (const Selection& single : SplitByObject(selection))
    {
        auto& before = NeedTarget(single).before;
        if (!before.contains(number))
            before.emplace(number, ReadRows(number, single));
    }
}

void ChangeLedger::Note(const Selection& selection)
{
    for (const std::unique_ptr<Panel>& panel : session.GetPanels())
        Note(selection, *panel);
}

void ChangeLedger::NoteCreated(const OvxStringT& styleName)
{
    Target& target =
        NeedTarget(Selection{OvxStringViewT(L"sheet:") + styleName, SelectorScope::Sheet, styleName, {}});
    target.isCreated = true;
    NeedReaders();
    for (std::size_t number = 0; number < readers.size(); ++number)
        target.before.emplace(number, readers[number]->GetDescription().rows.size());
}

void ChangeLedger::NotePalette(const OvxStringT& name)
{
    palette.try_emplace(name, session.GetDrawing().FindPaletteColour(name));
}

std::vector<Change> ChangeLedger::Describe()
{
    std::vector<Change> changes;
    DescribePalette(changes);
    for (const Target* target : TargetsInOrder())
        DescribeTarget(*target, changes);
    return changes;
}

/// Panels may have been loaded since the last time.
void ChangeLedger::NeedReaders()
{
    const auto& panels = session.GetPanels();
    while (readers.size() < panels.size())
        readers.push_back(std::make_unique<Panel>(panels[readers.size()]->GetDescription(), context));
}

std::size_t ChangeLedger::NumberOf(const Panel& panel) const
{
    const auto& panels = session.GetPanels();
    const auto found = std::find_if(panels.begin(), panels.end(),
                                    [&](const std::unique_ptr<Panel>& each) { return each.get() == &panel; });
    return static_cast<std::size_t>(found - panels.begin());
}

ChangeLedger::Target& ChangeLedger::NeedTarget(const Selection& single)
{
    return targets.try_emplace(single.selector.Wide(), Target{single, false, {}}).first->second;
}

std::vector<ChangeLedger::RowFacts> ChangeLedger::ReadRows(std::size_t panel, const Selection& single) const
{
    Panel& reader = *readers[panel];
    const PanelDescription& description = reader.GetDescription();
    IReflectable& names = reader.GetBoundNames();
    session.GetStyles().HandIn(reader.GetDataSource(), description, single);
    std::vector<RowFacts> rows;
    for (const RowDescription& row : description.rows)
    {
        RowFacts facts;
        facts.value = ToReportValue(names.ReadAny(row.property)).value_or(ReportValue());
        facts.link = names.Read<OvxStringT>(row.property + kLinkSuffix);
        facts.state = static_cast<ActivePropertyState>(names.Read<int>(row.property + kStateSuffix));
        const auto origin = ParseOrigin(names.Read<OvxStringT>(row.property + kOriginSuffix));
        facts.isLocal = origin && origin->kind == RowOrigin::Kind::Local;
        rows.push_back(std::move(facts));
    }
    return rows;
}

std::vector<const ChangeLedger::Target*> ChangeLedger::TargetsInOrder() const
{
    const DrawingOrder order(session);
    std::vector<const Target*> ordered;
    for (const auto& [selector, target] : targets)
        ordered.push_back(&target);
    std::sort(ordered.begin(), ordered.end(),
              [&](const Target* left, const Target* right)
              {
                  return std::tuple(order.PlaceOf(left->selection), left->selection.selector) <
                         std::tuple(order.PlaceOf(right->selection), right->selection.selector);
              });
    return ordered;
}

void ChangeLedger::DescribePalette(std::vector<Change>& changes) const
{
    for (const auto& [name, before] : palette)
    {
        const auto now = session.GetDrawing().FindPaletteColour(name);
        if (now != before)
            changes.push_back({.id = OvxStringViewT(L"palette:") + name,
                               .property = L"color",
                               .from = LookOf(before),
                               .to = LookOf(now),
                               .fromLink = {},
                               .toLink = {}});
    }
}

void ChangeLedger::DescribeTarget(const Target& target, std::vector<Change>& changes) const
{
    for (const auto& [panel, before] : target.before)
    {
        const std::vector<RowFacts> now = ReadRows(panel, target.selection);
        for (std::size_t index = 0; index < now.size(); ++index)
        {
            const RowPlace place{readers[panel].get(), &readers[panel]->GetDescription().rows[index]};
            // The state that goes with the name of the parent is that of the whole style. What a style that
            // is new inherits is no change.
            const bool isSame =
                place.IsStyleParent() ? now[index].value == before[index].value : now[index] == before[index];
            if (isSame || (target.isCreated && !now[index].isLocal))
                continue;
            changes.push_back({IdOf(target.selection), place.GetName(), before[index].value, now[index].value,
                               before[index].link, now[index].link, now[index].state});
        }
    }
}

} // namespace Workbench
