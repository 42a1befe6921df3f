#pragma once

#include "host/utils/OvxStringT.h"

#include <QIcon>

namespace Desktop
{

/// The picture of a state, by the name that panels give it: "OverriddenImage" and so on. An empty circle for
/// a name that there is no picture of.
[[nodiscard]] QIcon MakeStateIcon(const OvxStringT& image);

} // namespace Desktop
