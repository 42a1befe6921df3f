#include "reference_host/history/ImageIndex.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace ReferenceHost
{

using Styles::StyleData;

namespace
{

/// The slot where the search for a style begins. `slotCount` is a power of two.
std::size_t FirstSlot(const StyleData& style, std::size_t slotCount) noexcept
{
    // The factor spreads addresses, which differ in few bits; the upper ones are the best spread.
    constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15ULL;
    const std::uint64_t hash = reinterpret_cast<std::uintptr_t>(&style) * kFactor;
    return static_cast<std::size_t>(hash >> 32U) & (slotCount - 1);
}

} // namespace

std::size_t ImageIndex::Find(const Images& images, const StyleData& style) const noexcept
{
    if (slots.empty())
    {
        const auto isOfStyle = [&style](const StyleImage& image) { return &image.GetStyle() == &style; };
        return static_cast<std::size_t>(std::ranges::find_if(images, isOfStyle) - images.begin());
    }
    const std::size_t mask = slots.size() - 1;
    for (std::size_t slot = FirstSlot(style, slots.size()); slots[slot] != kFree; slot = (slot + 1) & mask)
    {
        const std::size_t place = slots[slot] - 1;
        if (&images[place].GetStyle() == &style)
            return place;
    }
    return images.size();
}

void ImageIndex::MakeRoom(Images& images, std::size_t further)
{
    const std::size_t count = images.size() + further;
    if (images.capacity() < count)
        images.reserve(std::max(count, 2 * images.size()));
    if (count <= kSearchedAsTheyAre || 2 * count <= slots.size())
        return;
    slots = std::vector<std::uint32_t>(std::bit_ceil(4 * count), kFree);
    for (std::size_t place = 0; place < images.size(); ++place)
        Add(images, place);
}

void ImageIndex::AddLast(const Images& images) noexcept
{
    if (!slots.empty())
        Add(images, images.size() - 1);
}

void ImageIndex::Erase(Images& images, const StyleData& style) noexcept
{
    const std::size_t place = Find(images, style);
    if (place == images.size())
        return;
    const std::size_t last = images.size() - 1;
    if (!slots.empty())
    {
        Free(images, SlotOf(images, place));
        if (place != last)
            slots[SlotOf(images, last)] = static_cast<std::uint32_t>(place + 1);
    }
    if (place != last)
        images[place] = std::move(images[last]);
    images.pop_back();
}

std::size_t ImageIndex::SlotOf(const Images& images, std::size_t place) const noexcept
{
    const std::size_t mask = slots.size() - 1;
    std::size_t slot = FirstSlot(images[place].GetStyle(), slots.size());
    while (slots[slot] != place + 1)
        slot = (slot + 1) & mask;
    return slot;
}

void ImageIndex::Add(const Images& images, std::size_t place) noexcept
{
    const std::size_t mask = slots.size() - 1;
    std::size_t slot = FirstSlot(images[place].GetStyle(), slots.size());
    while (slots[slot] != kFree)
        slot = (slot + 1) & mask;
    slots[slot] = static_cast<std::uint32_t>(place + 1);
}

/// Those behind the slot that are not where their search begins move up, so that no search ends too early.
void ImageIndex::Free(const Images& images, std::size_t slot) noexcept
{
    const std::size_t mask = slots.size() - 1;
    for (std::size_t next = (slot + 1) & mask; slots[next] != kFree; next = (next + 1) & mask)
    {
        const std::size_t first = FirstSlot(images[slots[next] - 1].GetStyle(), slots.size());
        if (((next - first) & mask) >= ((next - slot) & mask))
        {
            slots[slot] = slots[next];
            slot = next;
        }
    }
    slots[slot] = kFree;
}

} // namespace ReferenceHost
