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

Style* StyleData::SearchSubstyle(const PropertyKey& key) const noexcept
{
    // A style has a handful at the most.
    const auto place = std::ranges::find(substyles, key, &OwnSubstyle::key);
    if (place == substyles.end())
        return nullptr;
    if (owner == nullptr)
        found = {IdentityOf(key), place->style.get()};
    return place->style.get();
}

const Style* StyleData::SearchCounterpart() const noexcept
{
    if (owner == nullptr)
        return nullptr;

    Style* counterpart = nullptr;
    const Style* level = Of(*owner).GetParent();
    for (; level != nullptr && counterpart == nullptr; level = Of(*level).GetParent())
        counterpart = Of(*level).FindSubstyle(name);
    // A counterpart may lie deeper, where it is not all that is inherited: it is not remembered there.
    if (Of(*owner).owner == nullptr)
        found = {ReferenceHost::InheritanceVersion::Get(), counterpart};
    return counterpart;
}

bool StyleData::HasValues() const noexcept
{
    return !properties.empty() ||
           std::any_of(substyles.begin(), substyles.end(),
                       [](const OwnSubstyle& substyle) { return Of(*substyle.style).HasValues(); });
}

void StyleData::Store(const PropertyKey& key, OvxUtils::Any value)
{
    if (value.IsEmpty() && FindOwn(key) == nullptr)
        return;

    if (ReferenceHost::IStyleJournal* const journal = FindJournal())
        journal->BeforeStoring(*this, key);
    if (value.IsEmpty())
        properties.Remove(key);
    else
        properties.Set(key, std::move(value));
    TellInheritors();
}

void StyleData::StoreAll(OwnProperties values)
{
    if (properties.empty() && values.empty())
        return;

    // The room stays: what steps of before put back finds its place again.
    values.MakeRoomOf(properties);
    TellJournal();
    properties = std::move(values);
    TellInheritors();
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
        found = {};
        ReferenceHost::InheritanceVersion::Change();
    }
    if (substyle == nullptr)
        return;

    if (journal != nullptr)
        journal->BeforePlacing(self, key);
    Exchange(self, key, substyle);
}

void StyleData::LinkParent(Style* newParent)
{
    if (newParent == GetParent())
        return;
    TellJournal();
    RestoreParent(newParent);
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
    // Whole styles have four: one list that is never moved. Substyles seldom have any.
    if (other != nullptr && substyles.capacity() == 0)
        substyles.reserve(4);
    const auto place = FindPlace(substyles, key);
    const bool isThere = place != substyles.end() && place->key == key;
    // What nobody inherits from gains its first substyles without anybody taking notice.
    if (isThere || firstLink != nullptr)
        ReferenceHost::InheritanceVersion::Change();
    found = {};
    if (other != nullptr)
    {
        Of(*other).owner = &self;
        Of(*other).name = key;
        Of(*other).found = {};
    }
    if (isThere)
    {
        Of(*place->style).LeaveOwner();
        place->style.swap(other);
        if (place->style == nullptr)
            substyles.erase(place);
    }
    else if (other != nullptr)
    {
        substyles.insert(place, OwnSubstyle{key, std::move(other)});
    }
}

void StyleData::ExchangeValues(OwnProperties& others) noexcept
{
    properties.Exchange(others);
    TellInheritors();
}

void StyleData::ExchangeValue(const PropertyKey& key, OvxUtils::Any& other) noexcept
{
    properties.Exchange(key, other);
    TellInheritors();
}

void StyleData::LeaveOwner() noexcept
{
    owner = nullptr;
    found = {};
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

void StyleData::TellInheritors() const noexcept
{
    const StyleData* level = this;
    while (level->firstLink == nullptr && level->owner != nullptr)
        level = &Of(*level->owner);
    if (level->firstLink != nullptr)
        ReferenceHost::InheritanceVersion::Change();
}

StyleRelations& StyleData::NeedRelations()
{
    if (relations == nullptr)
        relations = std::make_unique<StyleRelations>();
    return *relations;
}

} // namespace Styles
