#pragma once

#include "host/Export.h"
#include "host/style_model/Style.h"

#include <vector>

namespace Styles
{

/// Refers to a style that is shown or edited. Borrows it; may refer to none.
class SubStyle
{
public:
    SubStyle() = default;

    /// Refers to `target`, which may be null.
    explicit SubStyle(Style* target) : style(target) {}

    /// The style that it refers to; null for none.
    operator Style*() const noexcept { return style; }

private:
    Style* style = nullptr;
};

/// One reference for each style, in order, null ones included.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::vector<SubStyle>
StylesToSubStyles(const std::vector<Style*>& styles);

/// One style for each reference, in order, null ones included.
[[nodiscard]] STYLEPROPERTIES_HOST_API std::vector<Style*>
SubStylesToStyles(const std::vector<SubStyle>& subStyles);

} // namespace Styles
