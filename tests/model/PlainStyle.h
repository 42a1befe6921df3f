#pragma once

#include "tests/model/PlainValue.h"

#include <cstddef>
#include <map>
#include <memory>
#include <set>
#include <string>

namespace LibraryModel
{

/// A style as plain maps: what a host promises of styles, without any of its cleverness.
struct PlainStyle
{
    explicit PlainStyle(Key itsCategory, PlainStyle* itsParent = nullptr);
    PlainStyle(const PlainStyle& other); ///< Keeps the parent, belongs to no owner and no sheet.
    PlainStyle& operator=(const PlainStyle&) = delete;
    ~PlainStyle();

    /// Takes over another style's contents, category and parent.
    void Assign(const PlainStyle& other);

    PlainStyle* NeedSubstyle(Key key, Key substyleCategory); ///< Null for the empty key.
    [[nodiscard]] PlainStyle* Substyle(Key key) const;
    void PlaceSubstyle(Key key, const PlainStyle* substyle); ///< A copy; null removes it.

    [[nodiscard]] bool IsEmpty() const { return properties.empty() && substyles.empty(); }

    [[nodiscard]] bool HasValues() const; ///< At any depth.

    [[nodiscard]] bool IsExternal() const { return !Outermost().sheetName.empty(); }

    [[nodiscard]] const PlainStyle& Outermost() const;

    void Store(Key key, const PlainValue& value); ///< Nothing removes the property.
    void StoreAt(const Path& path, const PlainValue& value);
    void ClearEmptySubstyles();

    std::string name; ///< Of a style that the test knows by a name.
    Key category;
    PlainStyle* parent;
    PlainStyle* owner = nullptr;
    std::map<Key, PlainValue> properties;
    std::map<Key, std::unique_ptr<PlainStyle>> substyles;
    std::string sheetName; ///< The external sheet of a whole style; empty for none.
    std::string link;      ///< Where that may be edited.

    static inline std::size_t liveCount = 0;
};

/// The style below another; null when one on the way is missing.
[[nodiscard]] PlainStyle* Descend(const PlainStyle* style, const Path& path);

/// Where the value comes from that a place below a style shows: the styles whose own values count, first one
/// first.
[[nodiscard]] std::vector<const PlainStyle*> SourcesOf(const PlainStyle& style, const Path& below);

[[nodiscard]] PlainValue EffectiveValue(const PlainStyle& style, Key key);
[[nodiscard]] PlainValue EffectiveValueAt(const PlainStyle& style, const Path& path);

/// Whether the style itself sets what the path leads to: a property, or anything in a substyle.
[[nodiscard]] bool OverridesAt(const PlainStyle& style, const Path& path);

/// The paths of all own values: those of the style, then those of each substyle.
[[nodiscard]] Paths OwnPaths(const PlainStyle& style);

/// Makes the destination set at these paths what the source sets there.
void CopyAt(PlainStyle& destination, const Paths& paths, const PlainStyle& source);

/// A style that sets itself everything that another shows.
[[nodiscard]] std::unique_ptr<PlainStyle> Flattened(const PlainStyle& style);

/// Whether a style inherits from another at any distance.
[[nodiscard]] bool InheritsFrom(const PlainStyle& style, const PlainStyle& other);

/// The style itself when it is of the category, else its substyle; null for none.
[[nodiscard]] PlainStyle* StyleOrSubstyle(PlainStyle* style, Key category);
[[nodiscard]] PlainStyle* StyleOrMadeSubstyle(PlainStyle* style, Key category);

} // namespace LibraryModel
