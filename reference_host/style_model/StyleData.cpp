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
    if (value.IsEmpty() && !isSet)
        return;

    TellJournal();
    if (value.IsEmpty())
        properties.erase(place);
    else if (isSet)
        place->value = std::move(value);
    else
        properties.insert(place, OwnProperty{key, std::move(value)});
}

void StyleData::StoreAll(std::vector<OwnProperty> values)
{
    if (properties.empty() && values.empty())
        return;

    TellJournal();
    properties = std::move(values);
}

void StyleData::Place(Style& self, const PropertyKey& key, std::unique_ptr<Style> substyle)
{
    ReferenceHost::IStyleJournal* const journal = FindJournal();
    const auto present = FindPlace(substyles, key);
    if (present != substyles.end() && present->key == key)
    {
        if (journal != nullptr)
            journal->TakeRemoved(self, key, present->style);
        substyles.erase(present);
    }
    if (substyle == nullptr)
        return;

    if (journal != nullptr)
        journal->BeforePlacing(self, key);
    Exchange(self, key, substyle);
}

void StyleData::LinkParent(Style* parent)
{
    if (parent == GetParent())
        return;
    TellJournal();
    RestoreParent(parent);
}

void StyleData::LinkDefaults(Style* defaults)
{
    if (defaults == GetDefaults())
        return;
    TellJournal();
    RestoreDefaults(defaults);
}

void StyleData::SetCategory(const PropertyKey& newCategory)
{
    if (category == newCategory)
        return;
    TellJournal();
    category = newCategory;
}

void StyleData::SetExternal(std::unique_ptr<StyleRelations::ExternalSheet> sheet)
{
    if (sheet != nullptr || relations != nullptr)
        NeedRelations().external = std::move(sheet);
}

void StyleData::SetJournal(ReferenceHost::IStyleJournal* journal)
{
    if (journal != nullptr || relations != nullptr)
        NeedRelations().journal = journal;
}

void StyleData::Exchange(Style& self, const PropertyKey& key, std::unique_ptr<Style>& other)
{
    const auto place = FindPlace(substyles, key);
    const bool isThere = place != substyles.end() && place->key == key;
    if (other != nullptr)
    {
        Of(*other).owner = &self;
        Of(*other).name = key;
    }
    if (isThere)
    {
        Of(*place->style).owner = nullptr;
        place->style.swap(other);
        if (place->style == nullptr)
            substyles.erase(place);
    }
    else if (other != nullptr)
    {
        substyles.insert(place, OwnSubstyle{key, std::move(other)});
    }
}

void StyleData::RestoreParent(Style* parent)
{
    if (parent != nullptr || relations != nullptr)
        NeedRelations().parent.Point(parent);
}

void StyleData::RestoreDefaults(Style* defaults)
{
    if (defaults != nullptr || relations != nullptr)
        NeedRelations().defaults.Point(defaults);
}

ReferenceHost::IStyleJournal* StyleData::FindJournal() const noexcept
{
    const StyleData* outermost = this;
    while (outermost->owner != nullptr)
        outermost = &Of(*outermost->owner);
    return outermost->relations == nullptr ? nullptr : outermost->relations->journal;
}

void StyleData::TellJournal()
{
    if (ReferenceHost::IStyleJournal* const journal = FindJournal())
        journal->BeforeChange(*this);
}

StyleRelations& StyleData::NeedRelations()
{
    if (relations == nullptr)
        relations = std::make_unique<StyleRelations>();
    return *relations;
}

} // namespace Styles
