#include "reference_host/history/StepChanges.h"

#include <algorithm>
#include <iterator>

namespace ReferenceHost
{

using Styles::Style;
using Styles::StyleData;

namespace
{

bool IsPartOfAny(const StyleData& style, std::span<Style* const> wholes)
{
    const StyleData* outermost = &style;
    while (outermost->owner != nullptr)
        outermost = &StyleData::Of(*outermost->owner);
    return std::ranges::any_of(wholes, [outermost](const Style* whole)
                               { return &StyleData::Of(*whole) == outermost; });
}

} // namespace

void StepChanges::KeepValue(StyleData& style, const Styles::PropertyKey& key)
{
    NeedImage(style).KeepValue(key);
}

void StepChanges::KeepStyle(StyleData& style)
{
    NeedImage(style).KeepAll();
}

void StepChanges::KeepFreePlace(Style& owner, const Styles::PropertyKey& key)
{
    places.try_emplace({&StyleData::Of(owner), key}, owner, key, nullptr);
}

void StepChanges::KeepTakenPlace(Style& owner, const Styles::PropertyKey& key,
                                 std::unique_ptr<Style>& removed)
{
    const Place place(&StyleData::Of(owner), key);
    if (!places.contains(place))
    {
        places.try_emplace(place, owner, key, std::move(removed));
        return;
    }
    Forget(*removed);
    removed.reset();
}

void StepChanges::Perform(std::unique_ptr<IDocumentChange> change)
{
    changes.push_back(std::move(change));
    try
    {
        changes.back()->Redo();
    }
    catch (...)
    {
        changes.pop_back();
        throw;
    }
}

void StepChanges::TakeOver(StepChanges& part)
{
    if (images.empty() && places.empty() && changes.empty())
    {
        images.swap(part.images);
        std::swap(index, part.index);
        places.swap(part.places);
        changes.swap(part.changes);
        return;
    }
    changes.reserve(changes.size() + part.changes.size());
    index.MakeRoom(images, part.images.size());
    for (StyleImage& image : part.images)
    {
        const std::size_t known = index.Find(images, image.GetStyle());
        if (known != images.size())
            images[known].MakeRoom(image);
    }
    // From here on nothing fails.
    for (StyleImage& image : part.images)
    {
        const std::size_t known = index.Find(images, image.GetStyle());
        if (known != images.size())
        {
            images[known].TakeOver(image);
            continue;
        }
        images.push_back(std::move(image));
        index.AddLast(images);
    }
    places.merge(part.places);
    for (const auto& [place, known] : part.places)
    {
        if (known.GetKept() != nullptr)
            Forget(*known.GetKept());
    }
    std::ranges::move(part.changes, std::back_inserter(changes));
}

bool StepChanges::ConcernsOnly(std::span<Style* const> wholes) const
{
    return changes.empty() &&
           std::ranges::all_of(images, [wholes](const StyleImage& image)
                               { return IsPartOfAny(image.GetStyle(), wholes); }) &&
           std::ranges::all_of(places, [wholes](const auto& place)
                               { return IsPartOfAny(*place.first.first, wholes); });
}

bool StepChanges::DropUnchanged()
{
    std::erase_if(images, [](const StyleImage& image) { return !image.DiffersFromNow(); });
    images.shrink_to_fit();
    index = ImageIndex();
    const bool isAnyLeft =
        !images.empty() || !changes.empty() ||
        std::ranges::any_of(places, [](const auto& place) { return place.second.DiffersFromNow(); });
    if (isAnyLeft)
        return true;

    // Earlier steps may know the substyles that were there, empty as they are.
    for (auto& [place, standing] : places)
    {
        if (standing.GetKept() != nullptr)
            standing.Exchange();
    }
    return false;
}

void StepChanges::Undo()
{
    for (auto change = changes.rbegin(); change != changes.rend(); ++change)
        (*change)->Undo();
    ExchangeAll();
}

void StepChanges::Redo()
{
    for (const auto& change : changes)
        change->Redo();
    ExchangeAll();
}

StyleImage& StepChanges::NeedImage(StyleData& style)
{
    const std::size_t known = index.Find(images, style);
    if (known != images.size())
        return images[known];
    index.MakeRoom(images, 1);
    images.emplace_back(style);
    index.AddLast(images);
    return images.back();
}

void StepChanges::ExchangeAll()
{
    for (StyleImage& image : images)
        image.Exchange();
    for (auto& [place, standing] : places)
        standing.Exchange();
}

void StepChanges::Forget(const Style& destroyed)
{
    const StyleData& data = StyleData::Of(destroyed);
    for (const Styles::OwnSubstyle& substyle : data.substyles)
        Forget(*substyle.style);
    index.Erase(images, data);
    auto place = places.lower_bound({&data, Styles::PropertyKey()});
    while (place != places.end() && place->first.first == &data)
    {
        if (place->second.GetKept() != nullptr)
            Forget(*place->second.GetKept());
        place = places.erase(place);
    }
}

} // namespace ReferenceHost
