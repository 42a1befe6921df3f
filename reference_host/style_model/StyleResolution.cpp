#include "reference_host/style_model/StyleResolution.h"

namespace ReferenceHost
{

using Styles::Style;
using Styles::StyleData;

Style* Descend(const Style* style, Names names) noexcept
{
    Style* found = const_cast<Style*>(style);
    for (const Styles::PropertyKey& name : names)
    {
        if (found == nullptr)
            return nullptr;
        found = StyleData::Of(*found).FindSubstyle(name);
    }
    return found;
}

const Style* FindCounterpart(const Style& top, const Style& reference, const Style& place) noexcept
{
    if (&place == &reference)
        return &top;

    const StyleData& data = StyleData::Of(place);
    const Style* owner = FindCounterpart(top, reference, *data.owner);
    return owner == nullptr ? nullptr : StyleData::Of(*owner).FindSubstyle(data.name);
}

const Style& OutermostOwner(const Style& style) noexcept
{
    const Style* outermost = &style;
    while (StyleData::Of(*outermost).owner != nullptr)
        outermost = StyleData::Of(*outermost).owner;
    return *outermost;
}

const Style* FindDefaults(const Style& outermost) noexcept
{
    for (const Style* style = &outermost; style != nullptr; style = ParentOf(*style))
    {
        if (const Style* defaults = StyleData::Of(*style).GetDefaults())
            return defaults;
    }
    return nullptr;
}

} // namespace ReferenceHost
