#pragma once

#include "host/Export.h"
#include "host/style_model/Style.h"
#include "host/style_model/StyleSheet.h"
#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <memory>
#include <unordered_map>
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
    /// another
    ///          style has it already: the style that was passed is gone then.
    Styles::Style* Add(const OvxStringT& name, std::unique_ptr<Styles::Style> style);

    /// The names of all styles, of every category, in the order of the sheet.
    [[nodiscard]] const std::vector<OvxStringT>& GetNames() const noexcept { return names; }

    [[nodiscard]] Styles::Style* GetStyle(const OvxStringT& name) const override;
    [[nodiscard]] OvxStringT GetStyleName(const Styles::Style* style) const override;
    [[nodiscard]] std::vector<OvxStringT> GetStyleNames(const Styles::PropertyKey& category) const override;

    /// `base` itself when it is free; else "BASE 2", "BASE 3" and so on, the first that is free.
    [[nodiscard]] OvxStringT GetUnusedStyleName(const OvxStringT& base) const override;

private:
    std::vector<OvxStringT> names;                      ///< In the order of the sheet, as `styles`.
    std::vector<std::unique_ptr<Styles::Style>> styles; ///< None null.
    std::unordered_map<OvxStringT, std::size_t> byName;
    std::unordered_map<const Styles::Style*, std::size_t> byStyle;

    /// For a base, the number up to which all its numbered names are taken. Names never become free again, so
    /// that many styles from one base cost no search through all the earlier ones.
    mutable std::unordered_map<OvxStringT, std::size_t> takenNumbers;
};

} // namespace ReferenceHost
