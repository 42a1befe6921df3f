#include "reference_host/document/RelativeValues.h"

#include <algorithm>
#include <vector>

namespace ReferenceHost
{

RelativeValues::RelativeValues(const PropertyMappings& properties, CascadeStyles& cascadeStyles,
                               std::deque<DrawingObject>& drawingObjects)
    : table(properties), cascades(cascadeStyles), objects(drawingObjects)
{
}

void RelativeValues::Fix()
{
    cascades.FixRelativeValues();
    std::set<std::size_t> allRows;
    for (std::size_t place = 0; place < table.GetRows().size(); ++place)
        allRows.insert(allRows.end(), place);
    hasAny = std::ranges::count(cascades.FindRelative(allRows), true) > 0;
}

void RelativeValues::MakeConcerned(const StepChanges& changes)
{
    if (!hasAny)
        return;
    std::set<std::size_t> rows;
    for (const StyleImage& image : changes.GetImages())
    {
        const Styles::StyleData& style = image.GetStyle();
        const Styles::StyleData& whole = style.owner == nullptr ? style : Styles::StyleData::Of(*style.owner);
        // Nobody inherits from an object.
        if (cascades.FindUser(whole).object == nullptr)
            AddChangedRows(rows, image);
    }
    if (rows.empty())
        return;
    const std::vector<bool> isConcerned = cascades.FindRelative(rows);
    if (std::ranges::find(isConcerned, true) == isConcerned.end())
        return;

    const auto make = [&isConcerned](auto& user)
    {
        if (isConcerned[user.GetCascade()])
            static_cast<void>(user.GetStyle());
    };
    for (DrawingObject& object : objects)
    {
        if (object.IsGroup())
            continue;
        make(object);
        std::ranges::for_each(object.GetParagraphs(), make);
        std::ranges::for_each(object.GetRuns(), make);
    }
}

void RelativeValues::AddChangedRows(std::set<std::size_t>& rows, const StyleImage& image) const
{
    const Styles::StyleData& now = image.GetStyle();
    const bool hasOtherParent = now.GetParent() != image.GetParent();
    const Styles::PropertyKey category = now.owner == nullptr ? now.category : now.name;
    for (std::size_t place = 0; place < table.GetRows().size(); ++place)
    {
        const PropertyMapping& row = table.GetRows()[place];
        const OvxUtils::Any* const before = image.Find(row.key);
        const OvxUtils::Any* const after = now.FindOwn(row.key);
        const bool isOther =
            row.category == category && ((before == nullptr) != (after == nullptr) ||
                                         (before != nullptr && after != nullptr && *before != *after));
        if (hasOtherParent || isOther)
            rows.insert(table.GetFirstRow(place));
    }
}

} // namespace ReferenceHost
