#include "host/style_model/Style.h"
#include "reference_host/style_model/CategoryRegistry.h"
#include "reference_host/style_model/ConstantTexts.h"
#include "reference_host/style_model/StyleData.h"
#include "reference_host/style_model/StyleResolution.h"

// What a style sets itself, and the free functions around styles.
namespace Styles
{

namespace
{

void CollectOverridden(const Style& style, PropertyPath& path, PropertyPaths& found)
{
    const StyleData& data = StyleData::Of(style);
    for (const OwnProperty& property : data.properties)
    {
        found.push_back(path);
        found.back().push_back(property.key);
    }
    for (const OwnSubstyle& substyle : data.substyles)
    {
        path.push_back(substyle.key);
        CollectOverridden(*substyle.style, path, found);
        path.pop_back();
    }
}

} // namespace

bool Style::DoesOverridePathProperty(const PropertyPath& path) const
{
    if (path.empty())
        return false;

    const Style* place = ReferenceHost::Descend(this, {path.data(), path.size() - 1});
    if (place == nullptr)
        return false;

    const StyleData& holder = StyleData::Of(*place);
    if (holder.FindOwn(path.back()) != nullptr)
        return true;

    const bool isWildcard = path.back() == ReferenceHost::ConstantKey(ReferenceHost::ConstantText::Wildcard);
    const Style* whole = isWildcard ? place : holder.FindSubstyle(path.back());
    return whole != nullptr && StyleData::Of(*whole).HasValues();
}

std::set<PropertyKey> GetOverriddenProperties(const Style& style)
{
    std::set<PropertyKey> keys;
    for (const OwnProperty& property : StyleData::Of(style).properties)
        keys.insert(keys.end(), property.key);
    return keys;
}

PropertyPaths GetOverriddenPropertyPaths(const Style& style)
{
    PropertyPaths found;
    PropertyPath path;
    CollectOverridden(style, path, found);
    return found;
}

std::set<PropertyKey> GetStyleCategoryProperties(const Style& style)
{
    return ReferenceHost::CategoryRegistry::GetInstance().GetProperties(style.GetCategoryName());
}

Style* GetStyleOrSubstyle(Style* style, const PropertyKey& category, bool create)
{
    if (style == nullptr || style->GetCategoryName() == category)
        return style;
    return create ? style->GetSubstyleAndCreateIfMissing(category, category)
                  : style->GetSubstyle(category, false);
}

Style* GetSubstyleParent(const Style& style)
{
    return style.GetOwner();
}

void ClearEmptySubstyles(Style& style)
{
    StyleData& data = StyleData::Of(style);
    for (std::size_t i = data.substyles.size(); i > 0; --i)
    {
        Style& substyle = *data.substyles[i - 1].style;
        ClearEmptySubstyles(substyle);
        if (substyle.IsEmpty())
            data.Place(style, data.substyles[i - 1].key, nullptr);
    }
}

} // namespace Styles
