#pragma once

#include "host/Export.h"
#include "host/style_model/PropertyKey.h"
#include "host/style_model/Style.h"
#include "host/utils/OvxStringT.h"

#include <vector>

namespace Styles
{

/// The named styles of a document, or of a sheet outside it. Owns them.
class STYLEPROPERTIES_HOST_API StyleSheet
{
public:
    StyleSheet() = default;
    StyleSheet(const StyleSheet&) = delete;
    StyleSheet& operator=(const StyleSheet&) = delete;
    virtual ~StyleSheet();

    /// The style of that name, owned by the sheet; null when unknown.
    [[nodiscard]] virtual Style* GetStyle(const OvxStringT& name) const = 0;

    /// The name of a style of this sheet; empty for null and for any other style.
    [[nodiscard]] virtual OvxStringT GetStyleName(const Style* style) const = 0;

    /// The names of the styles of one category, in the order of the sheet. Each of them can be found with
    /// GetStyle.
    [[nodiscard]] virtual std::vector<OvxStringT> GetStyleNames(const PropertyKey& category) const = 0;

    /// A name made from `base` that the sheet does not hold yet; `base` itself when it is free.
    [[nodiscard]] virtual OvxStringT GetUnusedStyleName(const OvxStringT& base) const = 0;
};

} // namespace Styles
