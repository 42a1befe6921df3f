#pragma once

#include "host/style_model/PropertyKey.h"
#include "host/style_model/Style.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/style_model/IStyleJournal.h"
#include "reference_host/style_model/OwnProperties.h"
#include "reference_host/style_model/StyleLink.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace Styles
{

/// A substyle in its owner.
struct OwnSubstyle
{
    PropertyKey key;
    std::unique_ptr<Style> style; ///< Never null.
};

/// What only outermost styles have: substyles, most of all styles by number, have none of it.
struct StyleRelations
{
    /// Where an external style lives.
    struct ExternalSheet
    {
        OvxStringT name;
        OvxStringT link;
    };

    ReferenceHost::StyleLink
        defaults; ///< What effective values fall back to after the parents; never a parent.
    std::unique_ptr<ExternalSheet> external;         ///< Null for a style of the document.
    ReferenceHost::IStyleJournal* journal = nullptr; ///< Of an outermost style; borrowed from its document.
};

/// The insides of a style, and the only place where they change: every change of a style, by whatever route,
/// is one of the operations under "Changes", and tells the journal first. Those under "Restoring" put back
/// what was there before, and tell nobody.
struct StyleData
{
    StyleData() = default;

    explicit StyleData(const PropertyKey& styleCategory) : category(styleCategory) {}

    StyleData(const StyleData&) = delete;
    StyleData& operator=(const StyleData&) = delete;
    ~StyleData();

    [[nodiscard]] static StyleData& Of(Style& style) noexcept { return *style.data; }

    [[nodiscard]] static const StyleData& Of(const Style& style) noexcept { return *style.data; }

    // Reading

    /// The own value of a property; null when the style does not set it.
    [[nodiscard]] const OvxUtils::Any* FindOwn(const PropertyKey& key) const noexcept
    {
        return properties.Find(key);
    }

    /// The own substyle of that name; null when there is none.
    [[nodiscard]] Style* FindSubstyle(const PropertyKey& key) const noexcept
    {
        Style* const known = FindKnownSubstyle(key);
        return known != nullptr ? known : SearchSubstyle(key);
    }

    /// The same as far as it is remembered; null when it is not.
    [[nodiscard]] Style* FindKnownSubstyle(const PropertyKey& key) const noexcept
    {
        return found.by == IdentityOf(key) ? found.style : nullptr;
    }

    /// Of a substyle of a whole style: the substyle of that name in the nearest of its owner's parents that
    /// has one; null when none has, and for a style without an owner.
    ///
    /// Looked up once and then remembered until anything changes that is inherited.
    [[nodiscard]] const Style* GetCounterpart() const noexcept
    {
        return found.by == ReferenceHost::InheritanceVersion::Get() ? found.style : SearchCounterpart();
    }

    /// The same as far as it is remembered; null when it is not.
    [[nodiscard]] const Style* FindKnownCounterpart() const noexcept
    {
        return found.by == ReferenceHost::InheritanceVersion::Get() ? found.style : nullptr;
    }

    [[nodiscard]] Style* GetParent() const noexcept { return parent.Get(); }

    [[nodiscard]] Style* GetDefaults() const noexcept
    {
        return relations ? relations->defaults.Get() : nullptr;
    }

    /// Tells whether the style or a substyle at any depth sets anything.
    [[nodiscard]] bool HasValues() const noexcept;

    // Changes

    /// Sets an own property, or removes it when `value` is empty.
    void Store(const PropertyKey& key, OvxUtils::Any value);

    /// Replaces all own properties.
    void StoreAll(OwnProperties values);

    /// Puts a substyle in place of the one of that name, or removes it when `substyle` is null. `self` is the
    /// style whose insides these are.
    void Place(Style& self, const PropertyKey& key, std::unique_ptr<Style> substyle);

    void LinkParent(Style* newParent);
    void LinkDefaults(Style* defaults);

    void SetCategory(const PropertyKey& newCategory);

    void SetExternal(std::unique_ptr<StyleRelations::ExternalSheet> sheet);

    void SetJournal(ReferenceHost::IStyleJournal* journal);

    // Restoring

    /// Changes the substyle of that name for `other`; either may be null. The one that leaves has no owner
    /// any more.
    void Exchange(Style& self, const PropertyKey& key, std::unique_ptr<Style>& other);

    /// Makes this no substyle any more.
    void LeaveOwner() noexcept;

    /// Changes all own properties for others.
    void ExchangeValues(OwnProperties& others) noexcept;

    /// Changes the own value of a property for another; an empty one stands for none. Never fails for a
    /// property that was set before: its room stays, whatever else is stored or restored.
    void ExchangeValue(const PropertyKey& key, OvxUtils::Any& other) noexcept;

    /// As LinkParent.
    void RestoreParent(Style* newParent) noexcept { parent.Point(newParent); }

    /// As LinkDefaults, which never fails for a style that had a default style before.
    void RestoreDefaults(Style* defaults);

private:
    /// What was looked up last, for the next time.
    struct Found
    {
        std::uint64_t by = 0;   ///< The address of a key's text, or the version of what is inherited.
        Style* style = nullptr; ///< Borrowed; null while nothing was looked up.
    };

    /// Of a substyle its counterpart, of any other style one of its substyles. Stands here because what a
    /// refresh asks of each target lies side by side, up to the first of the properties.
    mutable Found found;

public:
    // Fields, read freely

    PropertyKey category;
    Style* owner = nullptr; ///< The style that holds and owns this one as a substyle; null for any other.
    ReferenceHost::StyleLink parent;
    OwnProperties properties;
    std::unique_ptr<StyleRelations> relations;     ///< Null until needed.
    std::vector<OwnSubstyle> substyles;            ///< Ordered by key.
    PropertyKey name;                              ///< The name in the owner; meaningless without one.
    ReferenceHost::StyleLink* firstLink = nullptr; ///< The links that point to this style; their list's head.

private:
    [[nodiscard]] static std::uint64_t IdentityOf(const PropertyKey& key) noexcept
    {
        return reinterpret_cast<std::uintptr_t>(key.GetPooled().GetIdentity());
    }

    [[nodiscard]] Style* SearchSubstyle(const PropertyKey& key) const noexcept;
    [[nodiscard]] const Style* SearchCounterpart() const noexcept;
    [[nodiscard]] ReferenceHost::IStyleJournal* FindJournal() const noexcept;
    void TellJournal();
    void TellInheritors() const noexcept;
    StyleRelations& NeedRelations();
};

} // namespace Styles
