#include "reference_host/style_model/StyleInheritance.h"

#include "reference_host/style_model/StyleData.h"
#include "reference_host/style_model/StyleResolution.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace ReferenceHost
{

using Styles::Style;
using Styles::StyleData;

namespace
{

void AddNew(std::vector<const Style*>& styles, const Style* style)
{
    if (style != nullptr && std::find(styles.begin(), styles.end(), style) == styles.end())
        styles.push_back(style);
}

/// Adds what `style` inherits from in one step: its parent, the parents of its owners, and its counterparts
/// there.
void AddInherited(std::vector<const Style*>& styles, const Style& style)
{
    AddNew(styles, ParentOf(style));
    for (const Style* level = StyleData::Of(style).owner; level != nullptr;
         level = StyleData::Of(*level).owner)
    {
        for (const Style* parent = ParentOf(*level); parent != nullptr; parent = ParentOf(*parent))
        {
            AddNew(styles, parent);
            AddNew(styles, FindCounterpart(*parent, *level, style));
        }
    }
}

/// Tells whether `matches` holds for something that `style` inherits from at any distance.
template <class Predicate>
bool AnyInherited(const Style& style, const Predicate& matches)
{
    // Whole styles inherit along one chain; that is nearly all there is.
    const Style* last = &style;
    while (StyleData::Of(*last).owner == nullptr)
    {
        last = ParentOf(*last);
        if (last == nullptr)
            return false;
        if (matches(*last))
            return true;
    }

    std::vector<const Style*> inherited;
    AddInherited(inherited, *last);
    for (std::size_t i = 0; i < inherited.size(); ++i)
    {
        if (matches(*inherited[i]))
            return true;
        AddInherited(inherited, *inherited[i]);
    }
    return false;
}

bool LiesWithin(const Style& place, const Style& whole)
{
    const Style* level = &place;
    while (level != nullptr && level != &whole)
        level = StyleData::Of(*level).owner;
    return level != nullptr;
}

/// Tells whether any style inherits from this one, from something within it, or from one of its owners: only
/// then can there be a way back to it.
bool IsInherited(const Style& style)
{
    const StyleData& outermost = StyleData::Of(OutermostOwner(style));
    const auto hasLinks = [](const auto& self, const StyleData& data) -> bool
    {
        return data.firstLink != nullptr || std::any_of(data.substyles.begin(), data.substyles.end(),
                                                        [&self](const Styles::OwnSubstyle& substyle) {
                                                            return self(self, StyleData::Of(*substyle.style));
                                                        });
    };
    return hasLinks(hasLinks, outermost);
}

/// Tells whether a substyle of `style` would inherit from itself through the substyle of that name in
/// `parent`.
bool WouldSubstyleCloseCycle(const Style& style, const Style& parent)
{
    const StyleData& inParent = StyleData::Of(parent);
    return std::ranges::any_of(StyleData::Of(style).substyles,
                               [&inParent](const Styles::OwnSubstyle& substyle)
                               {
                                   const Style* counterpart = inParent.FindSubstyle(substyle.key);
                                   return counterpart != nullptr &&
                                          WouldCloseCycle(*substyle.style, *counterpart);
                               });
}

} // namespace

bool InheritsFromAny(const Style& style, std::span<Style* const> styles)
{
    return AnyInherited(
        style, [styles](const Style& inherited)
        { return std::binary_search(styles.begin(), styles.end(), &inherited, std::less<const Style*>()); });
}

bool WouldCloseCycle(const Style& style, const Style& parent)
{
    if (LiesWithin(parent, style))
        return true;
    if (!IsInherited(style))
        return false;

    return AnyInherited(parent, [&style](const Style& inherited) { return LiesWithin(inherited, style); }) ||
           WouldSubstyleCloseCycle(style, parent);
}

} // namespace ReferenceHost
