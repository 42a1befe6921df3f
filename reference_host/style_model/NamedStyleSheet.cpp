#include "reference_host/style_model/NamedStyleSheet.h"

#include <algorithm>
#include <cstddef>
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
    return InsertAt(styles.size(), name, std::move(style));
}

Styles::Style* NamedStyleSheet::InsertAt(std::size_t place, const OvxStringT& name,
                                         std::unique_ptr<Styles::Style> style)
{
    if (style == nullptr || name.empty() || byName.contains(name))
        return nullptr;

    const std::size_t at = std::min(place, styles.size());
    Styles::Style* const added = style.get();
    names.insert(names.begin() + static_cast<std::ptrdiff_t>(at), name);
    styles.insert(styles.begin() + static_cast<std::ptrdiff_t>(at), std::move(style));
    Number(at);
    return added;
}

std::unique_ptr<Styles::Style> NamedStyleSheet::TakeOut(const OvxStringT& name)
{
    const std::size_t at = GetPlace(name);
    if (at == styles.size())
        return nullptr;

    std::unique_ptr<Styles::Style> taken = std::move(styles[at]);
    byName.erase(names[at]);
    byStyle.erase(taken.get());
    names.erase(names.begin() + static_cast<std::ptrdiff_t>(at));
    styles.erase(styles.begin() + static_cast<std::ptrdiff_t>(at));
    takenNumbers.clear();
    Number(at);
    return taken;
}

bool NamedStyleSheet::Rename(const OvxStringT& name, const OvxStringT& newName)
{
    const std::size_t at = GetPlace(name);
    if (at == styles.size() || newName.empty() || byName.contains(newName))
        return false;

    byName.erase(names[at]);
    names[at] = newName;
    byName.emplace(newName, at);
    takenNumbers.clear();
    return true;
}

void NamedStyleSheet::Reserve(const OvxStringT& name)
{
    reserved.insert(name);
}

bool NamedStyleSheet::MayOffer(const OvxStringT& name) const
{
    return !byName.contains(name) && !reserved.contains(name);
}

std::size_t NamedStyleSheet::GetPlace(const OvxStringT& name) const
{
    const auto found = byName.find(name);
    return found == byName.end() ? styles.size() : found->second;
}

std::size_t NamedStyleSheet::GetPlaceInTurn(const OvxStringT& name) const
{
    // Styles of other categories may stand between.
    constexpr std::size_t kPassedOver = 2;
    const std::size_t end = std::min(nextPlace + 1 + kPassedOver, names.size());
    for (std::size_t place = nextPlace; place < end; ++place)
    {
        if (names[place] == name)
            return place;
    }
    return styles.size();
}

void NamedStyleSheet::Number(std::size_t first)
{
    for (std::size_t i = first; i < styles.size(); ++i)
    {
        byName[names[i]] = i;
        byStyle[styles[i].get()] = i;
    }
}

Styles::Style* NamedStyleSheet::GetStyle(const OvxStringT& name) const
{
    std::size_t place = GetPlaceInTurn(name);
    if (place == styles.size())
        place = GetPlace(name);
    if (place == styles.size())
        return nullptr;
    nextPlace = place + 1;
    return styles[place].get();
}

OvxStringT NamedStyleSheet::GetStyleName(const Styles::Style* style) const
{
    const auto found = byStyle.find(style);
    return found == byStyle.end() ? OvxStringT() : names[found->second];
}

std::vector<OvxStringT> NamedStyleSheet::GetStyleNames(const Styles::PropertyKey& category) const
{
    // Which styles they are first, and then their names: the styles lie far apart in memory, and a loop that
    // does nothing else waits for many of them at once (the benchmark style_list).
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i < styles.size(); ++i)
    {
        if (styles[i]->GetCategoryName() == category)
            places.push_back(i);
    }

    std::vector<OvxStringT> found;
    found.reserve(places.size());
    for (const std::size_t place : places)
        found.push_back(names[place]);
    return found;
}

OvxStringT NamedStyleSheet::GetUnusedStyleName(const OvxStringT& base) const
{
    if (MayOffer(base))
        return base;

    std::size_t& taken = takenNumbers.try_emplace(base, 1).first->second;
    for (;;)
    {
        OvxStringT name = base + L" " + OvxStringT(std::to_wstring(taken + 1));
        if (MayOffer(name))
            return name;
        ++taken;
    }
}

} // namespace ReferenceHost
