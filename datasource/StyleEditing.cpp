// Whether the styles behind the targets may be edited. Reads the targets only; keeps nothing.

#include "datasource/BaseStylePropertiesDatasource.h"
#include "host/style_model/CategoryNames.h"

using namespace Styles;

namespace
{

bool IsExternalWithoutLink(const Style& style)
{
    return style.IsExternal() && style.GetExternalLink().empty();
}

/// A style on the way up from a target, and whether the way led to a parent.
struct Climb
{
    Style* style = nullptr;
    bool reachedParent = false;

    /// Goes on to the parent where there is one, else to the owner.
    void Step()
    {
        Style* parent = style->GetParent();
        reachedParent = reachedParent || parent != nullptr;
        style = parent != nullptr ? parent : style->GetOwner();
    }
};

/// The style of `category` that a target leads to: its own, or the first found on the way up.
Climb FindStyleOfCategory(Style* target, const PropertyKey& category)
{
    Climb climb{target};
    Style* found = GetStyleOrSubstyle(climb.style, category, false);
    while (found == nullptr && climb.style != nullptr)
    {
        climb.Step();
        if (climb.style != nullptr)
            found = GetStyleOrSubstyle(climb.style, category, false);
    }
    climb.style = found;
    return climb;
}

/// Looks at the style and what it depends on, up to the first parent and no further.
bool IsEditable(Climb climb)
{
    bool editable = true;
    while (climb.style != nullptr)
    {
        editable = editable && !IsExternalWithoutLink(*climb.style);
        if (climb.reachedParent)
            break;
        climb.Step();
    }
    return editable;
}

} // namespace

int BaseStylePropertiesDatasource::GetEnableStyleEditing() const
{
    if (!GetEnableStyleEditingInternal(StyleCategoryName))
        return 0;

    Style* style = GetTargetStyle(0);
    if (style == nullptr)
        style = GetFirstTarget();
    if (style != nullptr && !IsExternalWithoutLink(*style))
        style = style->GetOwner();

    const PropertyKey category = style == nullptr ? PropertyKey::Empty : style->GetCategoryName();
    return GetEnableStyleEditingInternal(category) ? 1 : 0;
}

bool BaseStylePropertiesDatasource::GetEnableStyleEditingInternal(const PropertyKey& category) const
{
    bool editable = true;
    for (const SubStyle& target : targetStyles)
    {
        if (target != nullptr)
            editable = editable && IsEditable(FindStyleOfCategory(target, category));
    }
    return editable;
}
