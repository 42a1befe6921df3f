#include "reference_host/document/SavingContext.h"

#include "reference_host/document/CascadeStyles.h"
#include "reference_host/document/OwnValues.h"
#include "reference_host/style_model/StyleHosting.h"

#include "host/style_model/CategoryNames.h"
#include "host/utils/Utf8.h"

#include <algorithm>

namespace ReferenceHost
{

PropertyValues OwnValuesOf(const Styles::Style& style, const PropertyMappings& table)
{
    PropertyValues values;
    for (std::size_t place = 0; place < table.GetRows().size(); ++place)
    {
        const PropertyMapping& row = table.GetRows()[place];
        if (table.GetFirstRow(place) != place)
            continue;
        const bool isItself = style.GetCategoryName() == row.category;
        const Styles::Style* const holder = isItself ? &style : style.GetSubstyle(row.category, false);
        if (holder != nullptr && holder->DoesOverridePathProperty({row.key}))
            values.emplace(place, holder->GetProperty(row.key));
    }
    return values;
}

PropertyValues ChangesBetween(const PropertyValues& before, const PropertyValues& after)
{
    PropertyValues changes;
    for (const auto& [row, value] : before)
    {
        if (!after.contains(row))
            changes.emplace(row, OvxUtils::Any());
    }
    for (const auto& [row, value] : after)
    {
        const auto old = before.find(row);
        if (old == before.end() || old->second != value)
            changes.emplace(row, value);
    }
    return changes;
}

std::unique_ptr<Styles::Style> EvaluateRecords(const SavingContext& context,
                                               const Styles::PropertyKey& category, Styles::Style* parent,
                                               bool fallsBack, std::span<const StyleRecord* const> levels,
                                               const Styles::Style* like)
{
    const bool isWhole = category == Styles::PropertyKey::Empty;
    std::unique_ptr<Styles::Style> style = isWhole ? MakeWholeStyle(parent, context.data.table)
                                                   : std::make_unique<Styles::Style>(parent, category);
    Styles::Style& defaults = *context.data.defaultStyle;
    if (fallsBack)
        SetDefaultStyle(*style, isWhole ? &defaults : defaults.GetSubstyle(category, false));
    for (const Styles::PropertyKey& key : context.data.table.GetCategories())
    {
        const Styles::Style* const part = like == nullptr ? nullptr : like->GetSubstyle(key, false);
        if (part != nullptr && isWhole)
            style->GetSubstyle(key, false)->SetParent(part->GetParent());
    }
    OwnValues values(context.data.table, OwnValues::Scope::All);
    for (const StyleRecord* const level : levels)
        values.Add(*level);
    values.WriteTo(*style);
    return style;
}

} // namespace ReferenceHost
