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
/// An effective value is the first that is found among, in this order:
///
/// 1. the own properties, and those of the parents, nearest first;
/// 2. for a substyle, the substyle of the same name in each parent of its owner, nearest first, each followed
///    by its own parents; then likewise outwards, for the owner's owner;
/// 3. what the host falls back to (its document's defaults), which is no parent and never shows among the
/// parents.
///
/// A style owns its substyles; parent and owner are borrowed. Copies stand by themselves: they keep the
/// parent and belong to no owner and no sheet. Parent links never form a cycle.
///
/// In this host a style may go before those that inherit from it: their parent links are cleared. One thread,
/// the user interface's.
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
    /// stay, and so does the parent where the other's would close a cycle. Substyles that were there are
    /// destroyed.
    Style& operator=(const Style& other);

    ~Style();

    /// The effective value of a property; an empty Any when nothing sets it.
    ///
    /// @returns a reference that is valid until any style of the chain changes. Allocates nothing.
    [[nodiscard]] const OvxUtils::Any& GetProperty(const PropertyKey& key) const;

    /// The effective value at the end of a path through substyles; an empty Any for an empty path.
    ///
    /// A substyle on the way that is missing here is looked for where this style inherits from. As long-lived
    /// as what GetProperty returns.
    [[nodiscard]] const OvxUtils::Any& GetPathProperty(const PropertyPath& path) const;

    /// Sets an own property, also to what is in effect already. An empty value removes it.
    void SetProperty(const PropertyKey& key, const OvxUtils::Any& value);

    /// Sets an own property at the end of a path, creating the substyles on the way, each with its name as
    /// category. An empty value removes the property and creates nothing. An empty path does nothing.
    void SetPathProperty(const PropertyPath& path, OvxUtils::Any&& value);

    /// Copies the own values of `source` at `paths`. A path at which `source` sets nothing is removed here.
    ///
    /// A path that leads to a substyle stands for all own values in it, at any depth: afterwards the substyle
    /// sets here exactly what it sets in `source`. Substyles are made where `source` has values for them and
    /// never removed, only emptied; parents, owners and categories of those that are there stay. Empty paths
    /// are passed over. A null `source`, or this style itself, changes nothing.
    void SetProperties(const PropertyPaths& paths, const Style* source);

    /// Tells whether this style itself, and not a parent, sets the property at `path`.
    ///
    /// For a path that leads to a substyle, or that ends in the key "*" behind one: whether the substyle sets
    /// anything itself, at any depth. False for an empty path.
    [[nodiscard]] bool DoesOverridePathProperty(const PropertyPath& path) const;

    /// The substyle named `key`, owned by this style; null when there is none.
    ///
    /// `walkingPath` is true when a path is followed and false when only the presence is asked; both give the
    /// same answer here.
    [[nodiscard]] Style* GetSubstyle(const PropertyKey& key, bool walkingPath) const;

    /// The substyle named `key`, created with `category` when missing; null where it cannot be created, which
    /// in this host is only under the empty key. One that is there keeps its category.
    Style* GetSubstyleAndCreateIfMissing(const PropertyKey& key, const PropertyKey& category);

    /// Replaces the substyle named `key` by a copy of `substyle`; null removes it. A substyle that is
    /// replaced stays the same object and is assigned to. Nothing is kept under the empty key.
    void SetSubstyle(const PropertyKey& key, const Style* substyle);

    /// Sets the parent, or clears it with null.
    ///
    /// Refused, so that nothing changes, is a parent that would make a style inherit from itself: this style,
    /// a style within it, one that inherits from any of these, also by way of its owner, or one of which a
    /// substyle inherits from the substyle of the same name here.
    void SetParent(Style* newParent);

    /// Tells whether there are neither own properties nor substyles. Substyles count even when they are
    /// empty.
    [[nodiscard]] bool IsEmpty() const;

    /// Tells whether the style, or the style that owns it, belongs to an external style sheet.
    [[nodiscard]] bool IsExternal() const;

    /// The category that the style was made for.
    [[nodiscard]] PropertyKey GetCategoryName() const;

    /// Makes a style of the same category without a parent that holds every effective value of this style as
    /// its own, through substyles, what the host falls back to included. Substyles without an effective value
    /// are left out. Adds the top-level keys that the new style holds, of properties and of substyles, to
    /// `keys`.
    ///
    /// @returns a new style that the caller owns; never null.
    [[nodiscard]] Style* CreateFlattenedStyle(std::set<PropertyKey>& keys) const;

    /// Tells whether this style inherits, at any distance, from one of `styles`, which are sorted by address:
    /// as a parent, or for a substyle as a parent of its owner or the counterpart there. A style does not
    /// depend on itself, nor on what the host falls back to.
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

/// The paths of all properties that `style` sets itself, through substyles: those of the style first, then
/// those of each substyle, in the order of the keys.
[[nodiscard]] STYLEPROPERTIES_HOST_API PropertyPaths GetOverriddenPropertyPaths(const Style& style);

/// All property keys of the category of `style`, set or not; none for a category that the host does not know.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::set<PropertyKey> GetStyleCategoryProperties(const Style& style);

/// The style itself when it is of `category`, else its substyle of that name, made with that category when
/// `create` is true and it is missing; null otherwise, and for a null `style`.
STYLEPROPERTIES_HOST_API Style* GetStyleOrSubstyle(Style* style, const PropertyKey& category, bool create);

/// The style that owns a substyle; null for any other.
[[nodiscard]] STYLEPROPERTIES_HOST_API Style* GetSubstyleParent(const Style& style);

/// Removes the substyles that are empty, deepest first, so that one holding only empty ones goes too.
STYLEPROPERTIES_HOST_API void ClearEmptySubstyles(Style& style);

} // namespace Styles
