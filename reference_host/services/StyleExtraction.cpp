#include "reference_host/services/StyleExtraction.h"

#include "reference_host/style_model/StyleData.h"

#include "host/style_model/CategoryNames.h"

#include <algorithm>
#include <set>

namespace ReferenceHost
{

using Styles::Style;
using Styles::StyleData;

namespace
{

std::set<Styles::PropertyKey> SubstyleKeys(const Style& style)
{
    std::set<Styles::PropertyKey> keys;
    for (const Styles::OwnSubstyle& substyle : StyleData::Of(style).substyles)
        keys.insert(substyle.key);
    return keys;
}

/// Tells whether two styles set the same at every depth and have the same parents there.
bool AreAlike(const Style& left, const Style& right)
{
    const StyleData& inLeft = StyleData::Of(left);
    const StyleData& inRight = StyleData::Of(right);
    const auto isSame = [](const Styles::OwnProperty& one, const Styles::OwnProperty& other)
    { return one.key == other.key && one.value == other.value; };
    if (inLeft.GetParent() != inRight.GetParent() ||
        !std::ranges::equal(inLeft.properties, inRight.properties, isSame))
        return false;

    std::set<Styles::PropertyKey> keys = SubstyleKeys(left);
    keys.merge(SubstyleKeys(right));
    const Style nothing;
    return std::ranges::all_of(keys,
                               [&](const Styles::PropertyKey& key)
                               {
                                   const Style* const one = inLeft.FindSubstyle(key);
                                   const Style* const other = inRight.FindSubstyle(key);
                                   return AreAlike(one == nullptr ? nothing : *one,
                                                   other == nullptr ? nothing : *other);
                               });
}

/// Gives the substyles of `to` the parents that those of `from` have.
void CopySubstyleParents(Style& to, const Style& from)
{
    for (const Styles::OwnSubstyle& substyle : StyleData::Of(from).substyles)
    {
        if (Style* const parent = substyle.style->GetParent())
            to.GetSubstyleAndCreateIfMissing(substyle.key, substyle.style->GetCategoryName())
                ->SetParent(parent);
    }
}

/// Makes a style set nothing, and gives it a parent in place of all that it had.
void InheritAll(Style& style, Style& parent)
{
    const Style nothing;
    style.SetProperties(Styles::GetOverriddenPropertyPaths(style), &nothing);
    for (const Styles::OwnSubstyle& substyle : StyleData::Of(style).substyles)
        substyle.style->SetParent(nullptr);
    style.SetParent(&parent);
}

} // namespace

Style* PartOfCategory(Style* style, const Styles::PropertyKey& category)
{
    if (style == nullptr)
        return nullptr;
    if (style->GetCategoryName() == category)
        return style;
    return style->GetCategoryName() == Styles::StyleCategoryName
               ? style->GetSubstyleAndCreateIfMissing(category, category)
               : nullptr;
}

void ExtractInto(Style& newStyle, const std::vector<Style*>& styles)
{
    std::vector<Style*> parts;
    for (Style* const style : styles)
    {
        Style* const part = PartOfCategory(style, newStyle.GetCategoryName());
        if (part != nullptr && (parts.empty() || AreAlike(*parts.front(), *part)))
            parts.push_back(part);
    }
    if (parts.empty())
        return;

    const Style& first = *parts.front();
    newStyle.SetProperties(Styles::GetOverriddenPropertyPaths(first), &first);
    CopySubstyleParents(newStyle, first);
    newStyle.SetParent(first.GetParent());
    for (Style* const part : parts)
        InheritAll(*part, newStyle);
}

} // namespace ReferenceHost
