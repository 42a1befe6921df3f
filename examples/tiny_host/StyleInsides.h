#pragma once

#include "host/style_model/Style.h"

#include <cstddef>
#include <map>
#include <memory>

namespace Styles
{

/// The insides of a style of this host.
struct StyleData
{
    /// A link to a style that may go first: what it points to is null from then on.
    using Link = std::shared_ptr<Style*>;

    using Substyles = std::map<PropertyKey, std::unique_ptr<Style>>;

    explicit StyleData(Style* owningStyle) : self(std::make_shared<Style*>(owningStyle)) {}

    [[nodiscard]] static StyleData& Of(const Style& style) noexcept { return *style.data; }

    [[nodiscard]] static Style* Follow(const Link& link) noexcept
    {
        return link == nullptr ? nullptr : *link;
    }

    [[nodiscard]] static Link LinkTo(const Style* style)
    {
        return style == nullptr ? nullptr : Of(*style).self;
    }

    [[nodiscard]] const OvxUtils::Any* FindOwn(const PropertyKey& key) const;
    [[nodiscard]] Style* FindSubstyle(const PropertyKey& key) const;

    /// Whether anything is set, at any depth.
    [[nodiscard]] bool HasValues() const;

    /// Takes in a substyle; `owningStyle` is the style of this data. Null removes the one that is there.
    void Put(Style& owningStyle, PropertyKey key, std::unique_ptr<Style> substyle);

    Link self; ///< Points to the style of this data for as long as it lives.
    Link parent;
    Link defaults; ///< What a whole style falls back to; no parent.
    Style* owner = nullptr;
    PropertyKey name; ///< Of a substyle, within its owner.
    PropertyKey category;
    std::map<PropertyKey, OvxUtils::Any> properties;
    Substyles substyles;
    OvxStringT externalSheet; ///< Empty for styles of the document.
    OvxStringT externalLink;
};

} // namespace Styles

namespace TinyHost
{

/// How many styles live in the process, substyles included.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::size_t CountLiveStyles() noexcept;

} // namespace TinyHost
