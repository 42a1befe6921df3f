// Where a value comes from: the walk from a target to the style that sets it, and that style's name. Reads
// styles through what every host offers, so that it holds for hosts that store them differently.

#include "panels/ValueOrigin.h"

#include "host/style_model/IStylesSource.h"
#include "host/style_model/StyleSheet.h"
#include "module/StylesCommon.h"

#include <vector>

using namespace Styles;
using OvxUtils::Any;

namespace Panels
{

namespace
{

/// The first of `style` and its parents that sets the property at `path`; null when none does, and for null.
const Style* FindSetterAmongParents(const Style* style, const PropertyPath& path)
{
    while (style != nullptr && !style->DoesOverridePathProperty(path))
        style = style->GetParent();
    return style;
}

/// The style that lies below `top` where `place` lies below `reference`, one of its owners; null when there
/// is none.
const Style* FindCounterpart(const Style& top, const Style& reference, const Style& place)
{
    const Style* owner = place.GetOwner();
    const Style* counterpart = owner == &reference ? &top : FindCounterpart(top, reference, *owner);
    return counterpart == nullptr ? nullptr : counterpart->GetSubstyle(place.GetCategoryName(), true);
}

/// The first default style that shows a value at `path`, reached from it by the category; null when none
/// does, and when `categoryStyle` is that of a default style itself.
const Style* FindDefaultsWithValue(const Style& categoryStyle, const PropertyPath& path)
{
    IStylesSource* source = StylesCommon::GetActiveStyleSource();
    if (source == nullptr)
        return nullptr;

    const Style* found = nullptr;
    for (Style* candidate : source->GetDefaultStyles())
    {
        const Style* defaults = GetStyleOrSubstyle(candidate, categoryStyle.GetCategoryName(), false);
        if (defaults == &categoryStyle)
            return nullptr;
        if (found == nullptr && defaults != nullptr && !defaults->GetPathProperty(path).IsEmpty())
            found = defaults;
    }
    return found;
}

/// The style that has the name of `style`: the outermost one that owns it, or itself.
const Style& FindNamedStyle(const Style& style)
{
    const Style* outermost = &style;
    while (outermost->GetOwner() != nullptr)
        outermost = outermost->GetOwner();
    return *outermost;
}

} // namespace

OvxStringT DescribeOrigin(const ValueOrigin& origin)
{
    switch (origin.kind)
    {
    case ValueOrigin::Kind::Unset:
        return OvxStringT();
    case ValueOrigin::Kind::Local:
        return L"local";
    case ValueOrigin::Kind::Inherited:
        return OvxStringViewT(L"style:") + FindSheetName(*origin.style);
    case ValueOrigin::Kind::Default:
        return L"default";
    }
    return OvxStringT();
}

OvxStringT FindSheetName(const Style& style)
{
    IStylesSource* source = StylesCommon::GetActiveStyleSource();
    if (source == nullptr)
        return OvxStringT();

    const Style& named = FindNamedStyle(style);
    const StyleSheet* sheet = named.IsExternal()
                                  ? source->GetExternalStyleSheet(named.GetExternalStyleSheetName())
                                  : source->GetStyleSheet();
    return sheet == nullptr ? OvxStringT() : sheet->GetStyleName(&named);
}

const Style* FindInheritedSetter(const Style& categoryStyle, const PropertyPath& path)
{
    if (const Style* setter = FindSetterAmongParents(categoryStyle.GetParent(), path))
        return setter;

    for (const Style* owner = categoryStyle.GetOwner(); owner != nullptr; owner = owner->GetOwner())
    {
        for (const Style* parent = owner->GetParent(); parent != nullptr; parent = parent->GetParent())
        {
            const Style* counterpart = FindCounterpart(*parent, *owner, categoryStyle);
            if (const Style* setter = FindSetterAmongParents(counterpart, path))
                return setter;
        }
    }
    return nullptr;
}

Any FindInheritedValue(const Style& categoryStyle, const PropertyPath& path)
{
    const Style* setter = FindInheritedSetter(categoryStyle, path);
    if (setter == nullptr)
        setter = FindDefaultsWithValue(categoryStyle, path);
    return setter == nullptr ? Any() : setter->GetPathProperty(path);
}

} // namespace Panels
