#pragma once

#include "host/style_model/Style.h"

#include <memory>

namespace Bench
{

/// A whole style with its four substyles, as drawings have them; `parent` is borrowed and may be null.
[[nodiscard]] std::unique_ptr<Styles::Style> MakeWholeStyle(Styles::Style* parent);

} // namespace Bench
