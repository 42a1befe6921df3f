#pragma once

#include "tiny_host/StyleInsides.h"
#include "tiny_host/broken/Promises.h"

#include <span>

/// @file
/// Where a style looks for what it does not set itself. The order is the heart of a style model: whatever
/// asks for values goes through ForEachSource.

namespace TinyHost
{

using Styles::Style;
using Styles::StyleData;

/// Names of substyles, from the outside in.
using Names = std::span<const Styles::PropertyKey>;

[[nodiscard]] inline Style* ParentOf(const Style& style) noexcept
{
    return StyleData::Follow(StyleData::Of(style).parent);
}

[[nodiscard]] inline Style* OwnerOf(const Style& style) noexcept
{
    return StyleData::Of(style).owner;
}

[[nodiscard]] inline const Style& OutermostOwner(const Style& style) noexcept
{
    const Style* outermost = &style;
    while (OwnerOf(*outermost) != nullptr)
        outermost = OwnerOf(*outermost);
    return *outermost;
}

/// The substyle at `names`; null when one on the way is missing, and for a null style.
[[nodiscard]] inline Style* Descend(const Style* style, Names names)
{
    auto* place = const_cast<Style*>(style);
    for (std::size_t i = 0; i < names.size() && place != nullptr; ++i)
        place = StyleData::Of(*place).FindSubstyle(names[i]);
    return place;
}

/// What lies below `top` where `place` lies below `reference`, one of its owners or itself; null when there
/// is nothing.
[[nodiscard]] inline Style* Counterpart(const Style& top, const Style& reference, const Style& place)
{
    if (&place == &reference)
        return const_cast<Style*>(&top);
    const Style* const owner = Counterpart(top, reference, *OwnerOf(place));
    return owner == nullptr ? nullptr : StyleData::Of(*owner).FindSubstyle(StyleData::Of(place).name);
}

/// Visits a style and its parents, nearest first, until the visitor returns true. Null is passed over.
template <class Visitor>
bool VisitParents(const Style* first, const Visitor& visit)
{
    for (const Style* style = first; style != nullptr; style = ParentOf(*style))
    {
        if (visit(StyleData::Of(*style)))
            return true;
    }
    return false;
}

/// What the whole style at the top falls back to: its own default style, or the nearest of its parents'.
[[nodiscard]] inline const Style* DefaultsOf(const Style& outermost)
{
    const Style* defaults = nullptr;
    VisitParents(&outermost,
                 [&defaults](const StyleData& data)
                 {
                     defaults = StyleData::Follow(data.defaults);
                     return defaults != nullptr;
                 });
    return defaults;
}

/// Visits all that `style` shows values of at the place `below`, nearest first, until the visitor returns
/// true.
template <class Visitor>
bool ForEachSource(const Style& style, Names below, const Visitor& visit)
{
    // The place itself, and its parents.
    if (VisitParents(Descend(&style, below), visit))
        return true;

    // The same place in each parent of the style, then in each parent of its owner, and so on outwards. With
    // nothing below, the parents of the style have been asked already.
    for (const Style* level = below.empty() ? OwnerOf(style) : &style; level != nullptr;
         level = OwnerOf(*level))
    {
        if (!Keeps(Promise::SubstylesFollowTheirOwners))
            break;
        for (const Style* parent = ParentOf(*level); parent != nullptr; parent = ParentOf(*parent))
        {
            if (VisitParents(Descend(Counterpart(*parent, *level, style), below), visit))
                return true;
        }
    }

    // The same place in the default style.
    const Style& outermost = OutermostOwner(style);
    const Style* const defaults = DefaultsOf(outermost);
    return defaults != nullptr &&
           VisitParents(Descend(Counterpart(*defaults, outermost, style), below), visit);
}

} // namespace TinyHost
