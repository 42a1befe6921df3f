// The life of a style and what it holds: properties, a parent, substyles. Where values come from that it does
// not hold is told in StyleLookup.h; copying values from style to style is in StyleValues.cpp.

#include "tiny_host/StyleInsides.h"
#include "tiny_host/StyleLookup.h"

#include "host/style_model/CategoryNames.h"
#include "host/style_model/SubStyle.h"
#include "tiny_host/Lasting.h"

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace Styles
{

using namespace TinyHost;
using OvxUtils::Any;

namespace
{

constinit std::size_t liveStyles = 0;

const Any& FindEffective(const Style& style, Names below, const PropertyKey& key)
{
    const Any* found = nullptr;
    ForEachSource(style, below,
                  [&](const StyleData& source)
                  {
                      found = source.FindOwn(key);
                      return found != nullptr;
                  });
    return found == nullptr ? Lasting<Any>() : *found;
}

void AddOnce(std::vector<const Style*>& styles, const Style* style)
{
    if (style != nullptr && std::ranges::find(styles, style) == styles.end())
        styles.push_back(style);
}

/// All that `style` inherits from, at any distance.
std::vector<const Style*> CollectInherited(const Style& style)
{
    std::vector<const Style*> inherited;
    const auto addDirect = [&inherited](const Style& heir)
    {
        AddOnce(inherited, ParentOf(heir));
        for (const Style* level = OwnerOf(heir); level != nullptr; level = OwnerOf(*level))
        {
            for (const Style* parent = ParentOf(*level); parent != nullptr; parent = ParentOf(*parent))
            {
                AddOnce(inherited, parent);
                AddOnce(inherited, Counterpart(*parent, *level, heir));
            }
        }
    };
    addDirect(style);
    for (std::size_t i = 0; i < inherited.size(); ++i)
        addDirect(*inherited[i]);
    return inherited;
}

bool LiesWithin(const Style* place, const Style& whole)
{
    while (place != nullptr && place != &whole)
        place = OwnerOf(*place);
    return place != nullptr;
}

/// Tells whether `parent` as the parent of `style` would make a style inherit from itself.
bool WouldCloseCycle(const Style& style, const Style& parent)
{
    const auto isWithin = [&style](const Style* place) { return LiesWithin(place, style); };
    if (isWithin(&parent) || std::ranges::any_of(CollectInherited(parent), isWithin))
        return true;
    return std::ranges::any_of(StyleData::Of(style).substyles,
                               [&parent](const auto& each)
                               {
                                   const Style* const counterpart = parent.GetSubstyle(each.first, false);
                                   return counterpart != nullptr &&
                                          WouldCloseCycle(*each.second, *counterpart);
                               });
}

} // namespace

const Any* StyleData::FindOwn(const PropertyKey& key) const
{
    const auto found = properties.find(key);
    return found == properties.end() ? nullptr : &found->second;
}

Style* StyleData::FindSubstyle(const PropertyKey& key) const
{
    const auto found = substyles.find(key);
    return found == substyles.end() ? nullptr : found->second.get();
}

bool StyleData::HasValues() const
{
    return !properties.empty() ||
           std::ranges::any_of(substyles, [](const auto& each) { return Of(*each.second).HasValues(); });
}

void StyleData::Put(Style& owningStyle, PropertyKey key, std::unique_ptr<Style> substyle)
{
    substyles.erase(key);
    if (substyle == nullptr)
        return;
    Of(*substyle).owner = &owningStyle;
    Of(*substyle).name = key;
    substyles.emplace(key, std::move(substyle));
}

Style::Style() : Style(nullptr, PropertyKey::Empty)
{
}

Style::Style(Style* parent, const PropertyKey& category) : data(std::make_unique<StyleData>(this))
{
    data->parent = StyleData::LinkTo(parent);
    data->category = category;
    ++liveStyles;
}

Style::Style(const Style& other) : Style(other.GetParent(), other.data->category)
{
    data->defaults = other.data->defaults;
    data->properties = other.data->properties;
    if (!Keeps(Promise::CopiesTakeTheSubstylesAlong))
        return;
    for (const auto& [key, substyle] : other.data->substyles)
        data->Put(*this, key, std::make_unique<Style>(*substyle));
}

Style& Style::operator=(const Style& other)
{
    if (this == &other)
        return *this;

    // A copy first: the other may lie within this style.
    Style copy(other);
    data->properties = std::move(copy.data->properties);
    data->category = copy.data->category;
    data->substyles.clear();
    for (auto& [key, substyle] : copy.data->substyles)
        data->Put(*this, key, std::move(substyle));
    SetParent(copy.GetParent());
    return *this;
}

Style::~Style()
{
    *data->self = nullptr;
    --liveStyles;
}

const Any& Style::GetProperty(const PropertyKey& key) const
{
    return FindEffective(*this, {}, key);
}

const Any& Style::GetPathProperty(const PropertyPath& path) const
{
    if (path.empty())
        return Lasting<Any>();

    // As far as substyles are there, they say where to look on.
    const Style* place = this;
    Names below(path.data(), path.size() - 1);
    while (!below.empty() && place->GetSubstyle(below.front(), true) != nullptr)
    {
        place = place->GetSubstyle(below.front(), true);
        below = below.subspan(1);
    }
    return FindEffective(*place, below, path.back());
}

void Style::SetProperty(const PropertyKey& key, const Any& value)
{
    if (value.IsEmpty())
        data->properties.erase(key);
    else
        data->properties.insert_or_assign(key, Any(value));
}

void Style::SetPathProperty(const PropertyPath& path, Any&& value)
{
    if (path.empty())
        return;
    const Names names(path.data(), path.size() - 1);
    Style* place = this;
    for (std::size_t i = 0; i < names.size() && place != nullptr; ++i)
        place = value.IsEmpty() ? place->GetSubstyle(names[i], true)
                                : place->GetSubstyleAndCreateIfMissing(names[i], names[i]);
    if (place != nullptr)
        place->SetProperty(path.back(), value);
}

Style* Style::GetSubstyle(const PropertyKey& key, bool /*walkingPath*/) const
{
    return data->FindSubstyle(key);
}

Style* Style::GetSubstyleAndCreateIfMissing(const PropertyKey& key, const PropertyKey& category)
{
    if (key != PropertyKey::Empty && data->FindSubstyle(key) == nullptr)
        data->Put(*this, key, std::make_unique<Style>(nullptr, category));
    return data->FindSubstyle(key);
}

void Style::SetSubstyle(const PropertyKey& key, const Style* substyle)
{
    if (key == PropertyKey::Empty)
        return;
    Style* const present = data->FindSubstyle(key);
    if (present != nullptr && substyle != nullptr)
        *present = *substyle;
    else
        data->Put(*this, key, substyle == nullptr ? nullptr : std::make_unique<Style>(*substyle));
}

void Style::SetParent(Style* newParent)
{
    const bool isRefused =
        newParent != nullptr && Keeps(Promise::ParentsFormNoCycle) && WouldCloseCycle(*this, *newParent);
    if (!isRefused)
        data->parent = StyleData::LinkTo(newParent);
}

bool Style::IsEmpty() const
{
    return data->properties.empty() && data->substyles.empty();
}

bool Style::IsExternal() const
{
    return !GetExternalStyleSheetName().empty();
}

PropertyKey Style::GetCategoryName() const
{
    return data->category;
}

bool Style::HasParentalDependency(std::span<Style* const> styles) const
{
    return std::ranges::any_of(
        CollectInherited(*this), [styles](const Style* inherited)
        { return std::ranges::binary_search(styles, inherited, std::less<const Style*>()); });
}

Style* Style::GetParent() const
{
    return StyleData::Follow(data->parent);
}

Style* Style::GetOwner() const
{
    return data->owner;
}

OvxStringT Style::GetExternalStyleSheetName() const
{
    return StyleData::Of(OutermostOwner(*this)).externalSheet;
}

OvxStringT Style::GetExternalLink() const
{
    return StyleData::Of(OutermostOwner(*this)).externalLink;
}

std::size_t Style::GetOwnPropertyCount() const
{
    return data->properties.size();
}

std::vector<SubStyle> StylesToSubStyles(const std::vector<Style*>& styles)
{
    std::vector<SubStyle> subStyles;
    for (Style* const style : styles)
        subStyles.emplace_back(style);
    return subStyles;
}

std::vector<Style*> SubStylesToStyles(const std::vector<SubStyle>& subStyles)
{
    return {subStyles.begin(), subStyles.end()};
}

} // namespace Styles

std::size_t TinyHost::CountLiveStyles() noexcept
{
    return Styles::liveStyles;
}
