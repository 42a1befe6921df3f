#pragma once

#include "host/style_model/PropertyPath.h"
#include "host/style_model/Style.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"

namespace Panels
{

/// Where the value that a target shows comes from.
///
/// A plain value. Origins of two targets are equal when one and the same style sets the value of both, or
/// when it is of the same kind without a style.
struct ValueOrigin
{
    /// How near the value is to the target.
    enum class Kind
    {
        Unset,     ///< Nothing sets a value.
        Local,     ///< The target sets it itself.
        Inherited, ///< A style that the target inherits from sets it.
        Default    ///< No style that the target inherits from sets it: the host falls back to a default.
    };

    Kind kind = Kind::Unset; ///< Whether `style` has a meaning, too.

    /// The style that sets the value, as a rule a substyle; null unless Inherited. Borrowed from the host.
    const Styles::Style* style = nullptr;

    /// Equal as the structure describes.
    friend bool operator==(const ValueOrigin&, const ValueOrigin&) = default;
};

/// The origin as text: "local", "default", "style:" and the name of the style, or nothing for Unset.
///
/// The name is the one that FindSheetName() gives, so that a style without a name leaves "style:" alone.
[[nodiscard]] OvxStringT DescribeOrigin(const ValueOrigin& origin);

/// The name of a style in the sheet it lives in: that of the document, or for an external style the external
/// one; a substyle has the name of the style that owns it.
///
/// @returns an empty text without an active document or a sheet, and for a style that has no name there.
[[nodiscard]] OvxStringT FindSheetName(const Styles::Style& style);

/// The first style that sets the property at `path` of those that `categoryStyle` inherits from; what it sets
/// itself does not count.
///
/// Looks along its parents, and for a substyle then at the same substyle of each parent of its owner and at
/// the parents of that. A substyle counts as the same when it is of the same category.
///
/// @returns null when none of them does, also when the host falls back to a default.
[[nodiscard]] const Styles::Style* FindInheritedSetter(const Styles::Style& categoryStyle,
                                                       const Styles::PropertyPath& path);

/// What `categoryStyle` would show at `path` without a value of its own: the inherited value, else that of
/// the document's default styles.
///
/// @returns an empty value when there is neither, and for a default style itself when it inherits nothing.
[[nodiscard]] OvxUtils::Any FindInheritedValue(const Styles::Style& categoryStyle,
                                               const Styles::PropertyPath& path);

} // namespace Panels
