#pragma once

#include "host/Export.h"
#include "host/style_model/Style.h"
#include "host/style_model/StyleSheet.h"
#include "host/utils/OvxStringT.h"

#include <memory>
#include <utility>
#include <vector>

namespace TinyHost
{

/// Named styles in memory, in the order in which they were added.
class STYLEPROPERTIES_HOST_API Sheet final : public Styles::StyleSheet
{
public:
    /// Adds an empty style behind the others.
    ///
    /// @returns the style, owned by the sheet; null when the name is empty or taken.
    Styles::Style* Add(const Styles::PropertyKey& category, const OvxStringT& name);

    /// Removes the styles behind the first `count`.
    void Shrink(std::size_t count);

    [[nodiscard]] const std::vector<std::pair<OvxStringT, std::unique_ptr<Styles::Style>>>&
    GetStyles() const noexcept
    {
        return styles;
    }

    [[nodiscard]] Styles::Style* GetStyle(const OvxStringT& name) const override;
    [[nodiscard]] OvxStringT GetStyleName(const Styles::Style* style) const override;
    [[nodiscard]] std::vector<OvxStringT> GetStyleNames(const Styles::PropertyKey& category) const override;
    [[nodiscard]] OvxStringT GetUnusedStyleName(const OvxStringT& base) const override;

private:
    std::vector<std::pair<OvxStringT, std::unique_ptr<Styles::Style>>> styles;
};

} // namespace TinyHost
