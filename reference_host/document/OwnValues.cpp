#include "reference_host/document/OwnValues.h"

#include "reference_host/document/Measures.h"

#include "host/colour/CLR_COLORSPEC.h"

#include <optional>

namespace ReferenceHost
{

OwnValues::OwnValues(const PropertyMappings& properties, Scope wanted)
    : table(properties), scope(wanted), places(properties.GetRows().size())
{
}

void OwnValues::Add(const StyleRecord& record)
{
    gathered.reserve(gathered.size() + record.values.size());
    for (const StyleValue& value : record.values)
    {
        if (scope == Scope::Text && table.GetRows()[value.row].element == PropertyElement::Graphic)
            continue;
        std::size_t& place = places[value.row];
        if (place == 0)
        {
            gathered.push_back({value.row, value.value, value.percentOfInherited / 100.0});
            place = gathered.size();
            continue;
        }
        Gathered& nearer = gathered[place - 1];
        if (!nearer.value.IsEmpty())
            continue;
        if (!value.value.IsEmpty())
            Complete(nearer, value.value);
        else
            nearer.fraction *= value.percentOfInherited / 100.0;
    }
}

void OwnValues::Complete(Gathered& open, const OvxUtils::Any& value)
{
    if (open.fraction == 0)
    {
        open.value = OvxUtils::Any(CLR_COLORSPEC());
        return;
    }
    const int* const whole = value.TryGet<int>();
    const std::optional<int> part = whole == nullptr ? std::nullopt : RoundToInt(*whole * open.fraction);
    if (part)
        open.value = OvxUtils::Any(*part);
}

void OwnValues::CompleteFrom(const Styles::Style& style, const Styles::PropertyKey& key, Gathered& open)
{
    const OvxUtils::Any& inherited = style.GetProperty(key);
    if (!inherited.IsEmpty())
        Complete(open, inherited);
}

std::vector<std::size_t> OwnValues::WriteTo(Styles::Style& style) const
{
    std::vector<std::size_t> missing;
    for (const Gathered& each : gathered)
    {
        const PropertyMapping& row = table.GetRows()[each.row];
        Styles::Style* const target = Styles::GetStyleOrSubstyle(&style, row.category, false);
        if (target == nullptr)
            continue;
        if (!each.value.IsEmpty())
        {
            target->SetProperty(row.key, each.value);
            continue;
        }
        Gathered open = each;
        CompleteFrom(*target, row.key, open);
        if (!open.value.IsEmpty())
            target->SetProperty(row.key, open.value);
        else if (open.fraction != 0)
            missing.push_back(each.row);
    }
    return missing;
}

} // namespace ReferenceHost
