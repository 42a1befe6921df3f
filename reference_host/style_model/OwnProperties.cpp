#include "reference_host/style_model/OwnProperties.h"

#include <algorithm>
#include <utility>

namespace Styles
{

namespace
{

/// Most styles are written once: room for a few more is enough.
constexpr std::size_t kSpareRoom = 2;

/// As std::popcount, which calls a function where the processor is not known to count bits itself.
std::size_t CountBits(std::uint64_t bits) noexcept
{
    bits -= bits >> 1U & 0x5555555555555555U;
    bits = (bits & 0x3333333333333333U) + (bits >> 2U & 0x3333333333333333U);
    bits = (bits + (bits >> 4U)) & 0x0f0f0f0f0f0f0f0fU;
    return bits * 0x0101010101010101U >> 56U;
}

} // namespace

const OvxUtils::Any* OwnProperties::Search(const PropertyKey& key) const noexcept
{
    const Place place = FindPlace(key);
    return place.isSet ? &entries[static_cast<std::size_t>(place.index)].value : nullptr;
}

void OwnProperties::Set(const PropertyKey& key, OvxUtils::Any value)
{
    const Place place = FindPlace(key);
    if (place.isSet)
    {
        entries[static_cast<std::size_t>(place.index)].value = std::move(value);
        return;
    }
    if (entries.size() == entries.capacity())
        entries.reserve(entries.size() + entries.size() / 2 + kSpareRoom);
    Insert(place.index, key, std::move(value));
}

OwnProperties OwnProperties::CopyWithRoom() const
{
    OwnProperties copy;
    copy.MakeRoomOf(*this);
    copy.entries.assign(entries.begin(), entries.end());
    copy.present = present;
    copy.firstAddress = firstAddress;
    return copy;
}

void OwnProperties::Remove(const PropertyKey& key) noexcept
{
    const Place place = FindPlace(key);
    if (place.isSet)
        Erase(place.index);
}

void OwnProperties::Exchange(const PropertyKey& key, OvxUtils::Any& value) noexcept
{
    const Place place = FindPlace(key);
    if (!place.isSet)
    {
        if (!value.IsEmpty())
            Insert(place.index, key, std::move(value));
        return;
    }
    std::swap(entries[static_cast<std::size_t>(place.index)].value, value);
    if (entries[static_cast<std::size_t>(place.index)].value.IsEmpty())
        Erase(place.index);
}

OwnProperties::Place OwnProperties::FindPlace(const PropertyKey& key) const noexcept
{
    const std::uintptr_t distance = DistanceFromFirst(key);
    if (distance < kBits)
    {
        const std::uint64_t bit = std::uint64_t{1} << distance;
        return {static_cast<std::ptrdiff_t>(CountBits(present & (bit - 1))), (present & bit) != 0};
    }
    const auto place = std::ranges::lower_bound(entries, key, {}, &OwnProperty::key);
    return {place - entries.begin(), place != entries.end() && place->key == key};
}

void OwnProperties::Insert(std::ptrdiff_t index, const PropertyKey& key, OvxUtils::Any value)
{
    entries.insert(entries.begin() + index, OwnProperty{key, std::move(value)});
    const std::uintptr_t distance = DistanceFromFirst(key);
    if (distance < kBits)
        present |= std::uint64_t{1} << distance;
    else
        Index();
}

void OwnProperties::Erase(std::ptrdiff_t index) noexcept
{
    const std::uintptr_t distance = DistanceFromFirst(entries[static_cast<std::size_t>(index)].key);
    entries.erase(entries.begin() + index);
    if (index != 0 && distance < kBits)
        present &= ~(std::uint64_t{1} << distance);
    else
        Index();
}

/// Of what is there; where keys are scattered, removing one may bring the others together.
void OwnProperties::Index() noexcept
{
    present = 0;
    firstAddress = entries.empty() ? 0 : AddressOf(entries.front().key);
    if (!entries.empty() && DistanceFromFirst(entries.back().key) >= kBits)
    {
        firstAddress = kFarFromAll;
        return;
    }
    for (const OwnProperty& entry : entries)
        present |= std::uint64_t{1} << DistanceFromFirst(entry.key);
}

} // namespace Styles
