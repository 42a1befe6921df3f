#include "reference_host/style_model/StyleResolution.h"

#include "reference_host/utils/Immortal.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace ReferenceHost
{

using Styles::OwnProperties;
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

namespace
{

/// The first own value of a property among the parents of a style.
const OvxUtils::Any* FindInParents(const StyleData& data, const Styles::PropertyKey& key) noexcept
{
    for (const Style* parent = data.GetParent(); parent != nullptr; parent = ParentOf(*parent))
    {
        if (const OvxUtils::Any* value = StyleData::Of(*parent).properties.Find(key))
            return value;
    }
    return nullptr;
}

/// The first own value of a property from a counterpart on: its own, its parents', and so on with its
/// counterpart.
const OvxUtils::Any* FindFrom(const StyleData& counterpart, const Styles::PropertyKey& key) noexcept
{
    for (const StyleData* place = &counterpart;;)
    {
        const OvxUtils::Any* value = place->properties.Find(key);
        if (value == nullptr)
            value = FindInParents(*place, key);
        const Style* const next = place->GetCounterpart();
        if (value != nullptr || next == nullptr)
            return value;
        place = &StyleData::Of(*next);
    }
}

/// What was found last from a counterpart on. Many targets inherit from few styles: a refresh asks for the
/// same again and again.
struct InheritedValue
{
    const StyleData* from = nullptr;
    const Styles::StringPool::Text* key = nullptr;
    std::uint64_t version = 0; ///< Of what is inherited; the rest is right while that stays.
    const OvxUtils::Any* value = nullptr;
};

constinit std::array<InheritedValue, 256> inheritedValues;

/// Where FindFrom() is remembered for a counterpart and a key.
InheritedValue& PlaceOf(const StyleData& counterpart, const Styles::StringPool::Text* key) noexcept
{
    const auto style = reinterpret_cast<std::uintptr_t>(&counterpart) / alignof(std::max_align_t);
    const auto text = reinterpret_cast<std::uintptr_t>(key) / sizeof(Styles::StringPool::Text);
    return inheritedValues[(style + text) % inheritedValues.size()];
}

const OvxUtils::Any* FindInDefaults(const Style& style, const Styles::PropertyKey& key) noexcept
{
    const Style& outermost = OutermostOwner(style);
    const Style* defaults = FindDefaults(outermost);
    const Style* place = defaults == nullptr ? nullptr : FindCounterpart(*defaults, outermost, style);
    if (place == nullptr)
        return nullptr;
    const StyleData& data = StyleData::Of(*place);
    const OvxUtils::Any* value = data.properties.Find(key);
    return value == nullptr ? FindInParents(data, key) : value;
}

const OvxUtils::Any* FindDeep(const Style& style, const Styles::PropertyKey& key) noexcept
{
    const OvxUtils::Any* found = nullptr;
    VisitSources(style, {},
                 [&found, &key](const StyleData& source)
                 {
                     found = source.FindOwn(key);
                     return found != nullptr;
                 });
    return found;
}

/// The effective value without what is remembered of it, which is renewed; null when nothing sets it.
const OvxUtils::Any* FindAnew(const Style& style, const Styles::PropertyKey& key) noexcept
{
    const StyleData& data = StyleData::Of(style);
    if (const OvxUtils::Any* value = data.properties.Find(key))
        return value;
    if (data.owner != nullptr && StyleData::Of(*data.owner).owner != nullptr)
        return FindDeep(style, key);

    if (const OvxUtils::Any* value = FindInParents(data, key))
        return value;

    // What lies behind the counterpart of a whole style's substyle is what lies behind the substyle.
    if (const Style* const counterpart = data.GetCounterpart())
    {
        const StyleData& from = StyleData::Of(*counterpart);
        const OvxUtils::Any* const value = FindFrom(from, key);
        const Styles::StringPool::Text* const text = key.GetPooled().GetIdentity();
        PlaceOf(from, text) = {&from, text, InheritanceVersion::Get(), value};
        if (value != nullptr)
            return value;
    }
    return FindInDefaults(style, key);
}

/// As FindAnew(). Not inlined, so that what is remembered is found without registers of its own.
[[gnu::noinline]] const OvxUtils::Any& GetAnew(const Style& style, const Styles::PropertyKey& key) noexcept
{
    const OvxUtils::Any* const found = FindAnew(style, key);
    return found == nullptr ? NoValue() : *found;
}

} // namespace

const OvxUtils::Any& NoValue() noexcept
{
    static Immortal<OvxUtils::Any> none;
    return *none;
}

const OvxUtils::Any& GetEffective(const Style& style, const Styles::PropertyKey& key) noexcept
{
    const StyleData& data = StyleData::Of(style);
    const Style* const counterpart = data.FindKnownCounterpart();
    const OwnProperties::Presence own = data.properties.Look(key);
    if (own == OwnProperties::Presence::Set)
        return *data.properties.Search(key);
    if (own == OwnProperties::Presence::Unknown || counterpart == nullptr || data.GetParent() != nullptr)
        return GetAnew(style, key);

    const StyleData& from = StyleData::Of(*counterpart);
    const Styles::StringPool::Text* const text = key.GetPooled().GetIdentity();
    const InheritedValue& known = PlaceOf(from, text);
    const bool isRight = known.from == &from && known.key == text && known.value != nullptr &&
                         known.version == InheritanceVersion::Get();
    return isRight ? *known.value : GetAnew(style, key);
}

} // namespace ReferenceHost
