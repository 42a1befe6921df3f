// What people write: a selector on the first line, and on those behind it values for rows, "fill.color=#fff".

#include "apps/workbench/PanelReading.h"
#include "apps/workbench/Report.h"
#include "apps/workbench/RowPlace.h"
#include "apps/workbench/RowValues.h"
#include "apps/workbench/SelectionError.h"
#include "apps/workbench/UsageError.h"
#include "apps/workbench/ValueText.h"
#include "apps/workbench/Wildcard.h"
#include "fuzz/Choices.h"
#include "fuzz/Demand.h"
#include "fuzz/FuzzTarget.h"
#include "fuzz/Workplace.h"
#include "host/utils/Utf8.h"

#include <optional>
#include <set>
#include <string>

namespace
{

using Fuzz::Demand;
using Workbench::RowDescription;

void DemandSelection(Workbench::Session& session, const OvxStringT& text)
{
    const Workbench::Selector selector = Workbench::ParseSelector(text);
    Demand(selector.text == text, "a selector keeps its text");
    const Workbench::Selection selection = session.Select(selector);
    std::set<const ReferenceHost::DrawingObject*> objects;
    for (const ReferenceHost::DrawingObject* const object : selection.objects)
    {
        Demand(object != nullptr && !object->IsGroup(), "a selection holds objects");
        Demand(objects.insert(object).second, "a selection holds each object once");
    }
    const Workbench::Selection again = session.Select(Workbench::ParseSelector(selection.selector));
    Demand(again.objects == selection.objects && again.scope == selection.scope &&
               again.styleName == selection.styleName,
           "the selector that a selection tells finds that selection");
}

void DemandWildcard(const OvxStringT& pattern, const OvxStringT& text)
{
    const bool isPlain = pattern.Wide().find_first_of(L"*?[") == std::wstring::npos;
    const bool fits = Workbench::MatchesWildcard(pattern, text);
    Demand(!isPlain || fits == (pattern == text), "a pattern without wildcards fits itself alone");
    Demand(!fits || Workbench::MatchesWildcard(L"*" + pattern, L"x" + text),
           "a star fits what stands before");
}

std::optional<OvxUtils::Any> Read(const RowDescription& row, const OvxStringT& name, const OvxStringT& text)
{
    try
    {
        return Workbench::ParseRowValue(row, name, text, Fuzz::Workplace::Get().GetSession().GetDrawing());
    }
    catch (const Workbench::UsageError&)
    {
        return std::nullopt;
    }
}

void DemandValue(const OvxStringT& name, const OvxStringT& text)
{
    const Workbench::RowPlace place =
        Workbench::FindRow(Fuzz::Workplace::Get().GetSession().GetPanels(), name);
    const std::optional<OvxUtils::Any> value = Read(*place.row, name, text);
    if (!value)
        return;
    const int* const number = value->TryGet<int>();
    Demand(number == nullptr || !place.row->range ||
               (*number >= place.row->range->minimum && *number <= place.row->range->maximum),
           "a number keeps within the limits of its row");
    Workbench::RowReport shown;
    shown.description = place.row;
    shown.value = Workbench::ToReportValue(*value).value();
    if (number == nullptr)
        return;
    const OvxStringT written = Workbench::ValueToText(shown);
    Demand(Read(*place.row, name, written) == value,
           "a number that is shown can be read: " + OvxUtils::ToUtf8(written));
}

} // namespace

void Fuzz::RunInput(std::string_view input)
{
    Workplace& place = Workplace::Get();
    const OvxStringT selector = OvxUtils::FromUtf8(TakePart(input, '\n'));
    try
    {
        DemandSelection(place.GetSession(), selector);
    }
    catch (const Workbench::UsageError&)
    {
        // No selector.
    }
    catch (const Workbench::SelectionError&)
    {
        // It finds nothing.
    }
    while (!input.empty())
    {
        std::string_view line = TakePart(input, '\n');
        DemandWildcard(selector, OvxUtils::FromUtf8(line));
        const OvxStringT row = OvxUtils::FromUtf8(TakePart(line, '='));
        try
        {
            DemandValue(row, OvxUtils::FromUtf8(line));
        }
        catch (const Workbench::UsageError&)
        {
            // No such row.
        }
    }
}
