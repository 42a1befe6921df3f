// Values of one style in another: copying by paths, listing what is set, and the style that holds as its own
// all that another one shows.

#include "tiny_host/StyleInsides.h"
#include "tiny_host/StyleLookup.h"

#include "host/style_model/PooledString.h"

#include <iterator>
#include <map>
#include <memory>
#include <utility>

namespace Styles
{

using namespace TinyHost;
using OvxUtils::Any;

namespace
{

Names AllButLast(const PropertyPath& path)
{
    return {path.data(), path.size() - 1};
}

void CollectOverridden(const Style& style, PropertyPath& path, PropertyPaths& found)
{
    for (const auto& [key, value] : StyleData::Of(style).properties)
    {
        found.push_back(path);
        found.back().push_back(key);
    }
    for (const auto& [key, substyle] : StyleData::Of(style).substyles)
    {
        path.push_back(key);
        CollectOverridden(*substyle, path, found);
        path.pop_back();
    }
}

/// The paths of what the substyle at `path` sets, path included; none where there is no such substyle.
PropertyPaths PathsWithin(const Style& style, const PropertyPath& path)
{
    PropertyPaths found;
    PropertyPath within = path;
    if (const Style* const substyle = Descend(&style, path))
        CollectOverridden(*substyle, within, found);
    return found;
}

/// Makes the own value at a path the same as in `source`. Substyles that have to be made get the categories
/// that they have there.
void CopyValue(Style& destination, const Style& source, const PropertyPath& path)
{
    const Style* from = Descend(&source, AllButLast(path));
    const Any* const value = from == nullptr ? nullptr : StyleData::Of(*from).FindOwn(path.back());
    if (value == nullptr)
    {
        if (Keeps(Promise::ListedPathsAreCleared))
            destination.SetPathProperty(path, Any());
        return;
    }
    Style* to = &destination;
    from = &source;
    for (const PropertyKey& name : AllButLast(path))
    {
        from = from->GetSubstyle(name, true);
        to = to->GetSubstyleAndCreateIfMissing(name, from->GetCategoryName());
    }
    to->SetProperty(path.back(), *value);
}

/// Copies into `flattened` what `style` shows at the place `below`, and in the substyles there.
void Flatten(const Style& style, PropertyPath& below, Style& flattened)
{
    std::map<PropertyKey, PropertyKey>
        categories; ///< Of the substyles that any source has, the nearest first.
    ForEachSource(style, below,
                  [&](const StyleData& source)
                  {
                      // Neither replaces what a nearer source has put there.
                      StyleData::Of(flattened).properties.insert(source.properties.begin(),
                                                                 source.properties.end());
                      for (const auto& [key, substyle] : source.substyles)
                          categories.emplace(key, substyle->GetCategoryName());
                      return false;
                  });
    for (const auto& [key, category] : categories)
    {
        auto part = std::make_unique<Style>(nullptr, category);
        const Style* const own = below.empty() ? style.GetSubstyle(key, true) : nullptr;
        if (own == nullptr)
            below.push_back(key);
        Flatten(own == nullptr ? style : *own, below, *part);
        if (own == nullptr)
            below.pop_back();
        if (!part->IsEmpty())
            StyleData::Of(flattened).Put(flattened, key, std::move(part));
    }
}

} // namespace

void Style::SetProperties(const PropertyPaths& paths, const Style* source)
{
    if (source == nullptr || source == this)
        return;

    // A copy: the source may lie within this style, or this style within it.
    const Style values(*source);
    for (const PropertyPath& path : paths)
    {
        if (path.empty())
            continue;
        CopyValue(*this, values, path);
        for (const PropertyPath& cleared : PathsWithin(*this, path))
            CopyValue(*this, values, cleared);
        for (const PropertyPath& written : PathsWithin(values, path))
            CopyValue(*this, values, written);
    }
}

bool Style::DoesOverridePathProperty(const PropertyPath& path) const
{
    const Style* const place = path.empty() ? nullptr : Descend(this, AllButLast(path));
    if (place == nullptr)
        return false;
    if (StyleData::Of(*place).FindOwn(path.back()) != nullptr)
        return true;

    const bool isWildcard = path.back() == PooledString<StringPool>(L"*");
    const Style* const whole = isWildcard ? place : place->GetSubstyle(path.back(), true);
    return whole != nullptr && StyleData::Of(*whole).HasValues();
}

Style* Style::CreateFlattenedStyle(std::set<PropertyKey>& keys) const
{
    auto flattened = std::make_unique<Style>(nullptr, data->category);
    PropertyPath below;
    Flatten(*this, below, *flattened);
    for (const auto& [key, value] : flattened->data->properties)
        keys.insert(key);
    for (const auto& [key, substyle] : flattened->data->substyles)
        keys.insert(key);
    return flattened.release();
}

std::set<PropertyKey> GetOverriddenProperties(const Style& style)
{
    std::set<PropertyKey> keys;
    for (const auto& [key, value] : StyleData::Of(style).properties)
        keys.insert(key);
    return keys;
}

PropertyPaths GetOverriddenPropertyPaths(const Style& style)
{
    return PathsWithin(style, {});
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
    std::erase_if(StyleData::Of(style).substyles,
                  [](const auto& each)
                  {
                      ClearEmptySubstyles(*each.second);
                      return each.second->IsEmpty();
                  });
}

} // namespace Styles
