#include "reference_host/history/StyleImage.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace ReferenceHost
{

using OvxUtils::Any;
using Styles::OwnProperties;
using Styles::OwnProperty;
using Styles::PropertyKey;
using Styles::StyleData;

namespace
{

/// From more values on, all are kept.
constexpr std::size_t kSearchedAsTheyAre = 8;

bool AreEqual(const Any* left, const Any* right)
{
    return (left == nullptr) == (right == nullptr) && (left == nullptr || *left == *right);
}

void AddChanged(std::vector<PropertyKey>& changed, const OwnProperties& some, const OwnProperties& others)
{
    for (const OwnProperty& property : some)
    {
        if (!AreEqual(&property.value, others.Find(property.key)))
            changed.push_back(property.key);
    }
}

} // namespace

// What is put back has the room that it had, so that single values are put back without fail.
StyleImage::Whole::Whole(const StyleData& style)
    : category(style.category), values(style.properties.CopyWithRoom())
{
    parent.Point(style.GetParent());
    defaults.Point(style.GetDefaults());
}

void StyleImage::KeepValue(const PropertyKey& key)
{
    if (whole != nullptr || FindKept(key) != nullptr)
        return;
    if (values.size() == kSearchedAsTheyAre)
    {
        KeepAll();
        return;
    }
    const Any* const now = style->FindOwn(key);
    values.push_back({key, now == nullptr ? Any() : *now});
}

void StyleImage::KeepAll()
{
    if (whole != nullptr)
        return;
    auto all = std::make_unique<Whole>(*style);
    all->values.AddRoom(values.size());
    whole = std::move(all);
    for (KeptValue& kept : values)
        whole->values.Exchange(kept.key, kept.value);
    values.clear();
}

void StyleImage::MakeRoom(StyleImage& later)
{
    if (whole != nullptr)
        return;
    if (values.size() + later.values.size() > kSearchedAsTheyAre)
        later.KeepAll();
    if (later.whole != nullptr)
        later.whole->values.AddRoom(values.size());
    else
        values.reserve(values.size() + later.values.size());
}

void StyleImage::TakeOver(StyleImage& later) noexcept
{
    if (whole != nullptr)
        return;
    if (later.whole != nullptr)
    {
        whole = std::move(later.whole);
        for (KeptValue& kept : values)
            whole->values.Exchange(kept.key, kept.value);
        values.clear();
        return;
    }
    for (KeptValue& kept : later.values)
    {
        if (FindKept(kept.key) == nullptr)
            values.push_back(std::move(kept));
    }
}

const Any* StyleImage::Find(const PropertyKey& key) const noexcept
{
    if (whole != nullptr)
        return whole->values.Find(key);
    const KeptValue* const kept = FindKept(key);
    if (kept == nullptr)
        return style->FindOwn(key);
    return kept->value.IsEmpty() ? nullptr : &kept->value;
}

std::vector<PropertyKey> StyleImage::FindChangedKeys() const
{
    std::vector<PropertyKey> changed;
    if (whole != nullptr)
    {
        AddChanged(changed, whole->values, style->properties);
        AddChanged(changed, style->properties, whole->values);
    }
    for (const KeptValue& kept : values)
    {
        if (IsChanged(kept))
            changed.push_back(kept.key);
    }
    std::sort(changed.begin(), changed.end());
    changed.erase(std::unique(changed.begin(), changed.end()), changed.end());
    return changed;
}

bool StyleImage::DiffersFromNow() const
{
    if (whole == nullptr)
        return std::ranges::any_of(values, [this](const KeptValue& kept) { return IsChanged(kept); });
    return style->category != whole->category || style->GetParent() != whole->parent.Get() ||
           style->GetDefaults() != whole->defaults.Get() ||
           !std::ranges::equal(style->properties, whole->values,
                               [](const OwnProperty& left, const OwnProperty& right)
                               { return left.key == right.key && left.value == right.value; });
}

void StyleImage::Exchange()
{
    for (KeptValue& kept : values)
        style->ExchangeValue(kept.key, kept.value);
    if (whole == nullptr)
        return;

    std::swap(style->category, whole->category);
    style->ExchangeValues(whole->values);

    Styles::Style* const parentNow = style->GetParent();
    style->RestoreParent(whole->parent.Get());
    whole->parent.Point(parentNow);

    Styles::Style* const defaultsNow = style->GetDefaults();
    style->RestoreDefaults(whole->defaults.Get());
    whole->defaults.Point(defaultsNow);
}

const StyleImage::KeptValue* StyleImage::FindKept(const PropertyKey& key) const noexcept
{
    const auto place = std::ranges::find(values, key, &KeptValue::key);
    return place == values.end() ? nullptr : &*place;
}

bool StyleImage::IsChanged(const KeptValue& kept) const
{
    return !AreEqual(kept.value.IsEmpty() ? nullptr : &kept.value, style->FindOwn(kept.key));
}

} // namespace ReferenceHost
