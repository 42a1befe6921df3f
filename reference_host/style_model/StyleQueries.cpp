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

bool IsWildcard(const PropertyKey& key)
{
    return key == ReferenceHost::ConstantKey(ReferenceHost::ConstantText::Wildcard);
}

/// Tells whether a style sets a property, or, where the key stands for more, anything in a substyle of that
/// name or in itself.
bool SetsOrHolds(const StyleData& data, const PropertyKey& key)
{
    if (data.FindOwn(key) != nullptr)
        return true;
    if (IsWildcard(key))
        return data.HasValues();
    const Style* substyle = data.FindSubstyle(key);
    return substyle != nullptr && StyleData::Of(*substyle).HasValues();
}

/// Not inlined, so that the common question needs no registers of its own.
[[gnu::noinline]] bool SetsOrHoldsAt(const Style& style, const PropertyPath& path)
{
    if (path.empty())
        return false;
    const Style* place = ReferenceHost::Descend(&style, {path.data(), path.size() - 1});
    return place != nullptr && SetsOrHolds(StyleData::Of(*place), path.back());
}

} // namespace

bool Style::DoesOverridePathProperty(const PropertyPath& path) const
{
    // Nearly all that is asked: one property of a style without substyles.
    if (path.size() == 1 && data->substyles.empty() && !IsWildcard(path.front()))
    {
        const OwnProperties::Presence own = data->properties.Look(path.front());
        return own == OwnProperties::Presence::Set ||
               (own == OwnProperties::Presence::Unknown && data->properties.Search(path.front()) != nullptr);
    }
    return SetsOrHoldsAt(*this, path);
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
    if (style == nullptr)
        return nullptr;
    const StyleData& data = StyleData::Of(*style);
    if (data.category == category)
        return style;
    if (Style* const known = data.FindKnownSubstyle(category))
        return known;
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
