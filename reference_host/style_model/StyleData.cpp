#include "reference_host/style_model/StyleData.h"

#include <algorithm>
#include <utility>

namespace Styles
{

namespace
{

template <class Entries>
auto FindPlace(Entries& entries, const PropertyKey& key) noexcept
{
    return std::lower_bound(entries.begin(), entries.end(), key,
                            [](const auto& entry, const PropertyKey& sought) { return entry.key < sought; });
}

} // namespace

StyleData::~StyleData()
{
    ReferenceHost::StyleLink::ReleaseAll(firstLink);
}

const OvxUtils::Any* StyleData::FindOwn(const PropertyKey& key) const noexcept
{
    const auto place = FindPlace(properties, key);
    return place != properties.end() && place->key == key ? &place->value : nullptr;
}

Style* StyleData::FindSubstyle(const PropertyKey& key) const noexcept
{
    const auto place = FindPlace(substyles, key);
    return place != substyles.end() && place->key == key ? place->style.get() : nullptr;
}

bool StyleData::HasValues() const noexcept
{
    return !properties.empty() ||
           std::any_of(substyles.begin(), substyles.end(),
                       [](const OwnSubstyle& substyle) { return Of(*substyle.style).HasValues(); });
}

void StyleData::Store(const PropertyKey& key, OvxUtils::Any value)
{
    const auto place = FindPlace(properties, key);
    const bool isSet = place != properties.end() && place->key == key;
    if (value.IsEmpty())
    {
        if (isSet)
            properties.erase(place);
    }
    else if (isSet)
    {
        place->value = std::move(value);
    }
    else
    {
        properties.insert(place, OwnProperty{key, std::move(value)});
    }
}

void StyleData::StoreAll(std::vector<OwnProperty> values)
{
    properties = std::move(values);
}

void StyleData::Place(Style& self, const PropertyKey& key, std::unique_ptr<Style> substyle)
{
    const auto place = FindPlace(substyles, key);
    const bool isThere = place != substyles.end() && place->key == key;
    if (substyle == nullptr)
    {
        if (isThere)
            substyles.erase(place);
        return;
    }

    StyleData& placed = Of(*substyle);
    placed.owner = &self;
    placed.name = key;
    if (isThere)
        place->style = std::move(substyle);
    else
        substyles.insert(place, OwnSubstyle{key, std::move(substyle)});
}

void StyleData::LinkParent(Style* parent)
{
    if (parent != nullptr || relations != nullptr)
        NeedRelations().parent.Point(parent);
}

void StyleData::LinkDefaults(Style* defaults)
{
    if (defaults != nullptr || relations != nullptr)
        NeedRelations().defaults.Point(defaults);
}

void StyleData::SetExternal(std::unique_ptr<StyleRelations::ExternalSheet> sheet)
{
    if (sheet != nullptr || relations != nullptr)
        NeedRelations().external = std::move(sheet);
}

StyleRelations& StyleData::NeedRelations()
{
    if (relations == nullptr)
        relations = std::make_unique<StyleRelations>();
    return *relations;
}

} // namespace Styles
