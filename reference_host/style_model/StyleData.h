#pragma once

#include "host/style_model/PropertyKey.h"
#include "host/style_model/Style.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/style_model/IStyleJournal.h"
#include "reference_host/style_model/StyleLink.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace Styles
{

/// A property that a style sets itself.
struct OwnProperty
{
    PropertyKey key;
    OvxUtils::Any value; ///< Never empty.
};

/// A substyle in its owner.
struct OwnSubstyle
{
    PropertyKey key;
    std::unique_ptr<Style> style; ///< Never null.
};

/// What only some styles have: substyles, most of all styles by number, have none of it.
struct StyleRelations
{
    /// Where an external style lives.
    struct ExternalSheet
    {
        OvxStringT name;
        OvxStringT link;
    };

    ReferenceHost::StyleLink parent;
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
    [[nodiscard]] const OvxUtils::Any* FindOwn(const PropertyKey& key) const noexcept;

    /// The own substyle of that name; null when there is none.
    [[nodiscard]] Style* FindSubstyle(const PropertyKey& key) const noexcept;

    [[nodiscard]] Style* GetParent() const noexcept { return relations ? relations->parent.Get() : nullptr; }

    [[nodiscard]] Style* GetDefaults() const noexcept
    {
        return relations ? relations->defaults.Get() : nullptr;
    }

    /// Tells whether the style or a substyle at any depth sets anything.
    [[nodiscard]] bool HasValues() const noexcept;

    // Changes

    /// Sets an own property, or removes it when `value` is empty.
    void Store(const PropertyKey& key, OvxUtils::Any value);

    /// Replaces all own properties. They are ordered by key.
    void StoreAll(std::vector<OwnProperty> values);

    /// Puts a substyle in place of the one of that name, or removes it when `substyle` is null. `self` is the
    /// style whose insides these are.
    void Place(Style& self, const PropertyKey& key, std::unique_ptr<Style> substyle);

    void LinkParent(Style* parent);
    void LinkDefaults(Style* defaults);

    void SetCategory(const PropertyKey& newCategory);

    void SetExternal(std::unique_ptr<StyleRelations::ExternalSheet> sheet);

    void SetJournal(ReferenceHost::IStyleJournal* journal);

    // Restoring

    /// Changes the substyle of that name for `other`; either may be null. The one that leaves has no owner
    /// any more.
    void Exchange(Style& self, const PropertyKey& key, std::unique_ptr<Style>& other);

    /// As LinkParent, which never fails for a style that had a parent or a default style before.
    void RestoreParent(Style* parent);
    void RestoreDefaults(Style* defaults);

    // Fields, read freely

    PropertyKey category;
    PropertyKey name;       ///< The name in the owner; meaningless without one.
    Style* owner = nullptr; ///< The style that holds and owns this one as a substyle; null for any other.
    std::vector<OwnProperty> properties;           ///< Ordered by key.
    std::vector<OwnSubstyle> substyles;            ///< Ordered by key.
    std::unique_ptr<StyleRelations> relations;     ///< Null until needed.
    ReferenceHost::StyleLink* firstLink = nullptr; ///< The links that point to this style; their list's head.

private:
    [[nodiscard]] ReferenceHost::IStyleJournal* FindJournal() const noexcept;
    void TellJournal();
    StyleRelations& NeedRelations();
};

} // namespace Styles
