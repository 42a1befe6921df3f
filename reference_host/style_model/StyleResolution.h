#pragma once

#include "reference_host/style_model/StyleData.h"

#include <span>

/// @file
/// The one order in which everything that a style shows is looked up.
///
/// For the place `below` (names of substyles) under a style, the sources of values are, first one first:
///
/// 1. the place under the style itself, and the parents of what stands there, nearest first;
/// 2. the same place under each of the style's parents, nearest first, each followed by its own parents;
/// 3. when the style is a substyle: the place that corresponds to it under each parent of its owner, nearest
///    first, each followed by its own parents; then the same for the owner's owner, outwards;
/// 4. the corresponding place under the default style that the outermost owner carries, or else the nearest
///    of that owner's parents that carries one, followed by its own parents.
///
/// A step over a style that lacks the place is passed over. Only own values of each source count, so the walk
/// needs no memory of where it was: parent links form no cycles, and owners are never left for the owners of
/// a parent.

namespace ReferenceHost
{

using Names = std::span<const Styles::PropertyKey>;

/// The substyle at `names` below `style`; null when one on the way is missing, or when `style` is null.
[[nodiscard]] Styles::Style* Descend(const Styles::Style* style, Names names) noexcept;

/// The style that lies below `top` where `place` lies below `reference`, which is `place` itself or one of
/// its owners; null when there is none.
[[nodiscard]] const Styles::Style* FindCounterpart(const Styles::Style& top, const Styles::Style& reference,
                                                   const Styles::Style& place) noexcept;

/// The outermost owner of a style; the style itself when it is no substyle.
[[nodiscard]] const Styles::Style& OutermostOwner(const Styles::Style& style) noexcept;

/// The default style in force for a style; null when there is none.
[[nodiscard]] const Styles::Style* FindDefaults(const Styles::Style& outermost) noexcept;

[[nodiscard]] inline const Styles::Style* ParentOf(const Styles::Style& style) noexcept
{
    return Styles::StyleData::Of(style).GetParent();
}

/// Visits `first` and its parents; null is passed over. The visitor takes the StyleData and returns true to
/// end the walk; so does this.
template <class Visitor>
bool VisitWithParents(const Styles::Style* first, const Visitor& visit)
{
    for (const Styles::Style* style = first; style != nullptr; style = ParentOf(*style))
    {
        if (visit(Styles::StyleData::Of(*style)))
            return true;
    }
    return false;
}

/// Visits the sources of values for the place `below` under `style` in the order given above. Allocates
/// nothing.
///
/// @returns whether the visitor ended the walk by returning true.
template <class Visitor>
bool VisitSources(const Styles::Style& style, Names below, const Visitor& visit)
{
    if (VisitWithParents(Descend(&style, below), visit))
        return true;

    // Without names below, the parents of the style have just been visited.
    const Styles::Style* level = below.empty() ? Styles::StyleData::Of(style).owner : &style;
    for (; level != nullptr; level = Styles::StyleData::Of(*level).owner)
    {
        for (const Styles::Style* parent = ParentOf(*level); parent != nullptr; parent = ParentOf(*parent))
        {
            if (VisitWithParents(Descend(FindCounterpart(*parent, *level, style), below), visit))
                return true;
        }
    }

    const Styles::Style& outermost = OutermostOwner(style);
    const Styles::Style* defaults = FindDefaults(outermost);
    return defaults != nullptr &&
           VisitWithParents(Descend(FindCounterpart(*defaults, outermost, style), below), visit);
}

/// The empty value that stands for one that nothing sets.
[[nodiscard]] const OvxUtils::Any& NoValue() noexcept;

/// The effective value of a property of a style; NoValue() when nothing sets it. Along the sources of the
/// style itself, by what each style remembers of the way.
[[nodiscard]] const OvxUtils::Any& GetEffective(const Styles::Style& style,
                                                const Styles::PropertyKey& key) noexcept;

} // namespace ReferenceHost
