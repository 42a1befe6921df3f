#pragma once

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

namespace Styles
{

/// What a host tells of a category of styles.
class STYLEPROPERTIES_HOST_API StyleCategory
{
public:
    StyleCategory() = default;
    StyleCategory(const StyleCategory&) = delete;
    StyleCategory& operator=(const StyleCategory&) = delete;
    virtual ~StyleCategory();

    /// The name that a person reads, in the language in force; "&" is not escaped.
    [[nodiscard]] virtual OvxStringT GetDisplayName() const = 0;
};

} // namespace Styles
