#include "reference_host/style_model/NamedStyleSheet.h"

#include <string>
#include <utility>

namespace Styles
{

StyleSheet::~StyleSheet() = default;

} // namespace Styles

namespace ReferenceHost
{

NamedStyleSheet::NamedStyleSheet() = default;
NamedStyleSheet::~NamedStyleSheet() = default;

Styles::Style* NamedStyleSheet::Add(const OvxStringT& name, std::unique_ptr<Styles::Style> style)
{
    if (style == nullptr || name.empty() || !byName.try_emplace(name, styles.size()).second)
        return nullptr;

    byStyle.emplace(style.get(), styles.size());
    names.push_back(name);
    return styles.emplace_back(std::move(style)).get();
}

Styles::Style* NamedStyleSheet::GetStyle(const OvxStringT& name) const
{
    const auto found = byName.find(name);
    return found == byName.end() ? nullptr : styles[found->second].get();
}

OvxStringT NamedStyleSheet::GetStyleName(const Styles::Style* style) const
{
    const auto found = byStyle.find(style);
    return found == byStyle.end() ? OvxStringT() : names[found->second];
}

std::vector<OvxStringT> NamedStyleSheet::GetStyleNames(const Styles::PropertyKey& category) const
{
    std::vector<OvxStringT> found;
    for (std::size_t i = 0; i < styles.size(); ++i)
    {
        if (styles[i]->GetCategoryName() == category)
            found.push_back(names[i]);
    }
    return found;
}

OvxStringT NamedStyleSheet::GetUnusedStyleName(const OvxStringT& base) const
{
    if (!byName.contains(base))
        return base;

    std::size_t& taken = takenNumbers.try_emplace(base, 1).first->second;
    for (;;)
    {
        OvxStringT name = base + L" " + OvxStringT(std::to_wstring(taken + 1));
        if (!byName.contains(name))
            return name;
        ++taken;
    }
}

} // namespace ReferenceHost
