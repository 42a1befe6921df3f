// The named styles of a document, or of a sheet outside it.

#include "tiny_host/TinySheet.h"

#include "tiny_host/broken/Promises.h"

#include <algorithm>
#include <string>

Styles::StyleSheet::~StyleSheet() = default;

namespace TinyHost
{

using Styles::Style;

Style* Sheet::Add(const Styles::PropertyKey& category, const OvxStringT& name)
{
    if (name.empty() || GetStyle(name) != nullptr)
        return nullptr;
    styles.emplace_back(name, std::make_unique<Style>(nullptr, category));
    return styles.back().second.get();
}

void Sheet::Shrink(std::size_t count)
{
    while (styles.size() > count)
        styles.pop_back();
}

Style* Sheet::GetStyle(const OvxStringT& name) const
{
    const auto found = std::ranges::find_if(styles, [&name](const auto& each) { return each.first == name; });
    return found == styles.end() ? nullptr : found->second.get();
}

OvxStringT Sheet::GetStyleName(const Style* style) const
{
    const auto found =
        std::ranges::find_if(styles, [style](const auto& each) { return each.second.get() == style; });
    return found == styles.end() ? OvxStringT() : found->first;
}

std::vector<OvxStringT> Sheet::GetStyleNames(const Styles::PropertyKey& category) const
{
    std::vector<OvxStringT> names;
    for (const auto& [name, style] : styles)
    {
        if (style->GetCategoryName() == category || !Keeps(Promise::NamesAreOfOneCategory))
            names.push_back(name);
    }
    return names;
}

OvxStringT Sheet::GetUnusedStyleName(const OvxStringT& base) const
{
    OvxStringT name = base;
    for (int number = 2; GetStyle(name) != nullptr; ++number)
        name = base + OvxStringT::Format(L" %d", number);
    return name;
}

} // namespace TinyHost
