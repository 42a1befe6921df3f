#include "reference_host/style_model/OwnProperties.h"

#include <algorithm>
#include <utility>

namespace Styles
{

namespace
{

/// Most styles are written once: room for a few more is enough.
constexpr std::size_t kSpareRoom = 2;

template <class Entries>
auto FindPlace(Entries& entries, const PropertyKey& key) noexcept
{
    return std::lower_bound(entries.begin(), entries.end(), key,
                            [](const OwnProperty& entry, const PropertyKey& sought)
                            { return entry.key < sought; });
}

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
    if (firstAddress != kFarFromAll)
    {
        const std::uint64_t before = present & ((std::uint64_t{1} << DistanceFromFirst(key)) - 1);
        return &entries[CountBits(before)].value;
    }
    const auto place = FindPlace(entries, key);
    return place != entries.end() && place->key == key ? &place->value : nullptr;
}

void OwnProperties::Set(const PropertyKey& key, OvxUtils::Any value)
{
    const auto place = FindPlace(entries, key);
    if (place != entries.end() && place->key == key)
    {
        place->value = std::move(value);
        return;
    }

    const auto index = place - entries.begin();
    if (entries.size() == entries.capacity())
        entries.reserve(entries.size() + entries.size() / 2 + kSpareRoom);
    entries.insert(entries.begin() + index, OwnProperty{key, std::move(value)});
    Index();
}

void OwnProperties::Remove(const PropertyKey& key) noexcept
{
    const auto place = FindPlace(entries, key);
    if (place == entries.end() || place->key != key)
        return;
    entries.erase(place);
    Index();
}

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
