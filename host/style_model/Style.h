#pragma once

#include "host/Export.h"
#include "host/style_model/PropertyKey.h"
#include "host/style_model/PropertyPath.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <memory>
#include <set>
#include <span>

namespace Styles
{

/// The insides of a style: the host's own, defined where Style is implemented.
struct StyleData;

/// A set of properties, an optional parent to inherit from, named substyles, and for a substyle the style
/// that owns it.
///
/// An effective value is looked up among the own properties, then along the parents, then, for a substyle, in
/// the same substyle of the parents of its owner. What a host falls back to after that (its document's
/// defaults) is no parent and never shows among the parents.
///
/// A style owns its substyles; parent and owner are borrowed. A style whose parent or owner goes first must
/// have the link cleared by whoever destroys that style.
class STYLEPROPERTIES_HOST_API Style
{
public:
    /// An empty style without a category, a parent or an owner.
    Style();

    /// An empty style of `category` that inherits from `parent`; `parent` may be null and is borrowed.
    Style(Style* parent, const PropertyKey& category);

    /// Copies properties, category and parent link, and makes deep copies of the substyles. The copy has no
    /// owner and belongs to no sheet.
    Style(const Style& other);

    /// Replaces properties, substyles, category and parent link by copies of the other's. Owner and sheet
    /// stay.
    Style& operator=(const Style& other);

    ~Style();

    /// The effective value of a property; an empty Any when nothing sets it.
    ///
    /// @returns a reference that is valid until any style of the chain changes. Allocates nothing.
    [[nodiscard]] const OvxUtils::Any& GetProperty(const PropertyKey& key) const;

    /// The effective value at the end of a path through substyles; an empty Any for an empty path.
    [[nodiscard]] const OvxUtils::Any& GetPathProperty(const PropertyPath& path) const;

    /// Sets an own property. An empty value removes it.
    void SetProperty(const PropertyKey& key, const OvxUtils::Any& value);

    /// Sets an own property at the end of a path, creating the substyles on the way. An empty path does
    /// nothing.
    void SetPathProperty(const PropertyPath& path, OvxUtils::Any&& value);

    /// Copies the own values of `source` at `paths`. A path at which `source` sets nothing is removed here.
    ///
    /// A null `source` changes nothing. A path that leads to a substyle of `source` copies that whole
    /// substyle's own values.
    void SetProperties(const PropertyPaths& paths, const Style* source);

    /// Tells whether this style itself, and not a parent, sets the property at `path`.
    [[nodiscard]] bool DoesOverridePathProperty(const PropertyPath& path) const;

    /// The substyle named `key`, owned by this style; null when there is none.
    ///
    /// `walkingPath` is true when a path is followed and false when only the presence is asked; both give the
    /// same answer here.
    [[nodiscard]] Style* GetSubstyle(const PropertyKey& key, bool walkingPath) const;

    /// The substyle named `key`, created with `category` when missing; null only where it cannot be created.
    Style* GetSubstyleAndCreateIfMissing(const PropertyKey& key, const PropertyKey& category);

    /// Replaces the substyle named `key` by a copy of `substyle`; null removes it.
    void SetSubstyle(const PropertyKey& key, const Style* substyle);

    /// Sets the parent, or clears it with null. A parent that inherits from this style is refused: nothing
    /// changes.
    void SetParent(Style* newParent);

    /// Tells whether there are neither own properties nor substyles. Substyles count even when they are
    /// empty.
    [[nodiscard]] bool IsEmpty() const;

    /// Tells whether the style belongs to an external style sheet.
    [[nodiscard]] bool IsExternal() const;

    [[nodiscard]] PropertyKey GetCategoryName() const;

    /// Makes a style of the same category without a parent that holds every effective value of this style as
    /// its own, through substyles, and adds the top-level keys it holds (properties and substyles) to `keys`.
    ///
    /// @returns a new style that the caller owns; never null.
    [[nodiscard]] Style* CreateFlattenedStyle(std::set<PropertyKey>& keys) const;

    /// Tells whether this style inherits, at any distance, from one of `styles`, which are sorted by address.
    /// A style does not depend on itself.
    [[nodiscard]] bool HasParentalDependency(std::span<Style* const> styles) const;

    /// The style this one inherits from; null when there is none.
    [[nodiscard]] Style* GetParent() const;

    /// The style that holds this one as a substyle; null for any other.
    [[nodiscard]] Style* GetOwner() const;

    /// The name of the external sheet this style lives in; empty unless IsExternal().
    [[nodiscard]] OvxStringT GetExternalStyleSheetName() const;

    /// The link by which an external style may be edited; empty when it has none, or is not external.
    [[nodiscard]] OvxStringT GetExternalLink() const;

    /// How many properties this style sets itself, those of substyles not counted.
    [[nodiscard]] std::size_t GetOwnPropertyCount() const;

private:
    friend struct StyleData;

    std::unique_ptr<StyleData> data;
};

/// The keys of the properties that `style` sets itself; substyle names are not among them.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::set<PropertyKey> GetOverriddenProperties(const Style& style);

/// The paths of all properties that `style` sets itself, through substyles.
[[nodiscard]] STYLEPROPERTIES_HOST_API PropertyPaths GetOverriddenPropertyPaths(const Style& style);

/// All property keys of the category of `style`, set or not.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::set<PropertyKey> GetStyleCategoryProperties(const Style& style);

/// The style itself when it is of `category`, else its substyle of that name, made with that category when
/// `create` is true and it is missing; null otherwise, and for a null `style`.
STYLEPROPERTIES_HOST_API Style* GetStyleOrSubstyle(Style* style, const PropertyKey& category, bool create);

/// The style that owns a substyle; null for any other.
[[nodiscard]] STYLEPROPERTIES_HOST_API Style* GetSubstyleParent(const Style& style);

/// Removes the substyles that are empty, deepest first, so that one holding only empty ones goes too.
STYLEPROPERTIES_HOST_API void ClearEmptySubstyles(Style& style);

} // namespace Styles
