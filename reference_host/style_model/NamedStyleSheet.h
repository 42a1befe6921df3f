#pragma once

#include "host/Export.h"
#include "host/style_model/Style.h"
#include "host/style_model/StyleSheet.h"
#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace ReferenceHost
{

/// A style sheet in memory. Keeps its styles in the order in which they were added; names and styles find
/// each other without a search.
///
/// Destroying it clears the parent links of the styles that inherit from its own, inside and outside of it.
class STYLEPROPERTIES_HOST_API NamedStyleSheet final : public Styles::StyleSheet
{
public:
    NamedStyleSheet();
    ~NamedStyleSheet() override;

    /// Takes a style in under a name, behind all others.
    ///
    /// @returns the style, owned by the sheet from now on; null when `style` is null, the name is empty or
    ///          another style has it already: the style that was passed is gone then.
    Styles::Style* Add(const OvxStringT& name, std::unique_ptr<Styles::Style> style);

    /// Takes a style in as Add does, but at a place: the styles from there on move back by one. A place
    /// behind the last is the last.
    Styles::Style* InsertAt(std::size_t place, const OvxStringT& name, std::unique_ptr<Styles::Style> style);

    /// Gives a style up; the name is free again. Styles that inherit from it go on to do so.
    ///
    /// @returns the style, owned by the caller from now on; null for an unknown name.
    std::unique_ptr<Styles::Style> TakeOut(const OvxStringT& name);

    /// Changes the name of a style, which stays where it is and keeps its address.
    ///
    /// @returns whether it did: not when `name` is unknown, or `newName` is empty or taken.
    bool Rename(const OvxStringT& name, const OvxStringT& newName);

    /// Keeps GetUnusedStyleName from offering a name; nothing else heeds it.
    void Reserve(const OvxStringT& name);

    /// The place of a name in the order of the sheet; the number of styles for an unknown one.
    [[nodiscard]] std::size_t GetPlace(const OvxStringT& name) const;

    /// The names of all styles, of every category, in the order of the sheet.
    [[nodiscard]] const std::vector<OvxStringT>& GetNames() const noexcept { return names; }

    [[nodiscard]] Styles::Style* GetStyle(const OvxStringT& name) const override;
    [[nodiscard]] OvxStringT GetStyleName(const Styles::Style* style) const override;
    [[nodiscard]] std::vector<OvxStringT> GetStyleNames(const Styles::PropertyKey& category) const override;

    /// `base` itself when it is free and not reserved; else "BASE 2", "BASE 3" and so on, the first of that
    /// kind.
    [[nodiscard]] OvxStringT GetUnusedStyleName(const OvxStringT& base) const override;

private:
    [[nodiscard]] bool MayOffer(const OvxStringT& name) const;

    /// The place of a name that is asked for after the one before it in the sheet, as lists do; the number of
    /// styles when it is asked for in another order. No search: a long list spends less on this than on the
    /// copies of its names (the benchmark style_list).
    [[nodiscard]] std::size_t GetPlaceInTurn(const OvxStringT& name) const;

    /// Enters the styles from `first` on under their places.
    void Number(std::size_t first);

    std::vector<OvxStringT> names;                      ///< In the order of the sheet, as `styles`.
    std::vector<std::unique_ptr<Styles::Style>> styles; ///< None null.
    std::unordered_map<OvxStringT, std::size_t> byName;
    std::unordered_map<const Styles::Style*, std::size_t> byStyle;

    /// Behind the place of the style that GetStyle found last.
    mutable std::size_t nextPlace = 0;

    std::unordered_set<OvxStringT> reserved;

    /// For a base, the number up to which all its numbered names are taken, so that many styles from one base
    /// cost no search through all the earlier ones. Forgotten when a name becomes free.
    mutable std::unordered_map<OvxStringT, std::size_t> takenNumbers;
};

} // namespace ReferenceHost
