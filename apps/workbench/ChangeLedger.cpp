#include "apps/workbench/ChangeLedger.h"

#include "apps/workbench/PanelReading.h"
#include "apps/workbench/SelectionSearch.h"
#include "host/utils/Any.h"
#include "reference_host/history/History.h"

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

void ChangeLedger::Note(const Selection& selection, const RowPlace& place)
{
    NeedReaders();
    if (!(selection.selector == notedSelector))
        notedRows.clear();
    notedSelector = selection.selector;
    const bool isWhole = place.row == nullptr || place.IsStyleParent();
    const std::vector<RowNumber> rows =
        FindNew(isWhole ? AllRows() : std::vector<RowNumber>{NumberOf(place)});
    if (rows.empty())
        return;
    for (const Selection& single : SplitByObject(selection))
        NeedTarget(single).rows.insert(rows.begin(), rows.end());
}

void ChangeLedger::NoteCreated(const OvxStringT& styleName)
{
    Target& target =
        NeedTarget(Selection{OvxStringViewT(L"sheet:") + styleName, SelectorScope::Sheet, styleName, {}});
    target.isCreated = true;
    NeedReaders();
    const std::vector<RowNumber> rows = AllRows();
    target.rows.insert(rows.begin(), rows.end());
}

void ChangeLedger::NotePalette(const OvxStringT& name)
{
    palette.insert(name);
}

std::vector<Change> ChangeLedger::Describe()
{
    const std::vector<const Target*> ordered = TargetsInOrder();
    PaletteLooks paletteBefore;
    std::vector<RowsFacts> before;
    {
        const ReferenceHost::History::Rewind atTheBeginning(session.GetDrawing().GetHistory());
        paletteBefore = ReadPalette();
        for (const Target* target : ordered)
            before.push_back(ReadRows(*target));
    }

    std::vector<Change> changes;
    DescribePalette(paletteBefore, changes);
    for (std::size_t place = 0; place < ordered.size(); ++place)
        DescribeTarget(*ordered[place], before[place], changes);
    return changes;
}

/// Panels may have been loaded since the last time.
void ChangeLedger::NeedReaders()
{
    const auto& panels = session.GetPanels();
    while (readers.size() < panels.size())
        readers.push_back(std::make_unique<Panel>(panels[readers.size()]->GetDescription(), context));
}

std::vector<ChangeLedger::RowNumber> ChangeLedger::AllRows() const
{
    std::vector<RowNumber> rows;
    for (std::size_t panel = 0; panel < readers.size(); ++panel)
    {
        for (std::size_t row = 0; row < readers[panel]->GetDescription().rows.size(); ++row)
            rows.emplace_back(panel, row);
    }
    return rows;
}

ChangeLedger::RowNumber ChangeLedger::NumberOf(const RowPlace& place) const
{
    const auto& panels = session.GetPanels();
    const auto found =
        std::find_if(panels.begin(), panels.end(),
                     [&](const std::unique_ptr<Panel>& each) { return each.get() == place.panel; });
    const RowDescription* const first = place.panel->GetDescription().rows.data();
    return {static_cast<std::size_t>(found - panels.begin()), static_cast<std::size_t>(place.row - first)};
}

const RowDescription& ChangeLedger::RowOf(RowNumber number) const
{
    return readers[number.first]->GetDescription().rows[number.second];
}

ChangeLedger::Target& ChangeLedger::NeedTarget(const Selection& single)
{
    return targets.try_emplace(single.selector.Wide(), Target{single, false, {}}).first->second;
}

/// Those of the rows that the selection at hand was not noted for yet.
std::vector<ChangeLedger::RowNumber> ChangeLedger::FindNew(const std::vector<RowNumber>& rows)
{
    std::vector<RowNumber> found;
    for (const RowNumber& number : rows)
    {
        if (notedRows.insert(number).second)
            found.push_back(number);
    }
    return found;
}

void ChangeLedger::HandIn(std::size_t panel, const Selection& single) const
{
    session.GetStyles().HandIn(readers[panel]->GetDataSource(), readers[panel]->GetDescription(), single);
}

ChangeLedger::RowFacts ChangeLedger::Read(RowNumber number) const
{
    const IReflectable& names = readers[number.first]->GetBoundNames();
    const OvxStringT& property = RowOf(number).property;
    RowFacts facts;
    facts.value = ToReportValue(names.ReadAny(property)).value_or(ReportValue());
    facts.link = names.Read<OvxStringT>(property + kLinkSuffix);
    facts.state = static_cast<ActivePropertyState>(names.Read<int>(property + kStateSuffix));
    const auto origin = ParseOrigin(names.Read<OvxStringT>(property + kOriginSuffix));
    facts.isLocal = origin && origin->kind == RowOrigin::Kind::Local;
    return facts;
}

/// The rows stand in the order of their panels, so that each panel is handed the target once.
ChangeLedger::RowsFacts ChangeLedger::ReadRows(const Target& target) const
{
    RowsFacts facts;
    std::optional<std::size_t> handed;
    for (const RowNumber& number : target.rows)
    {
        if (handed != number.first)
            HandIn(number.first, target.selection);
        handed = number.first;
        facts.emplace(number, Read(number));
    }
    return facts;
}

ChangeLedger::PaletteLooks ChangeLedger::ReadPalette() const
{
    PaletteLooks looks;
    for (const OvxStringT& name : palette)
        looks.emplace(name, session.GetDrawing().FindPaletteColour(name));
    return looks;
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

void ChangeLedger::DescribePalette(const PaletteLooks& before, std::vector<Change>& changes) const
{
    for (const auto& [name, look] : ReadPalette())
    {
        const auto lookBefore = before.at(name);
        if (look != lookBefore)
            changes.push_back({.id = OvxStringViewT(L"palette:") + name,
                               .property = L"color",
                               .from = LookOf(lookBefore),
                               .to = LookOf(look),
                               .fromLink = {},
                               .toLink = {}});
    }
}

void ChangeLedger::DescribeTarget(const Target& target, const RowsFacts& before,
                                  std::vector<Change>& changes) const
{
    for (const auto& [number, now] : ReadRows(target))
    {
        const RowFacts& earlier = before.at(number);
        const RowPlace place{readers[number.first].get(), &RowOf(number)};
        // The state that goes with the name of the parent is that of the whole style. What a style that is
        // new inherits is no change.
        const bool isSame = place.IsStyleParent() ? now.value == earlier.value : now == earlier;
        if (isSame || (target.isCreated && !now.isLocal))
            continue;
        changes.push_back({IdOf(target.selection), place.GetName(), earlier.value, now.value, earlier.link,
                           now.link, now.state});
    }
}

} // namespace Workbench
