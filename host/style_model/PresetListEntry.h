#pragma once

#include "host/ui_list/WCmnUI_ListItem.h"
#include "host/utils/OvxStringT.h"

#include <cstdint>

namespace Styles
{

/// One preset of a list that is being filled.
struct PresetListEntry
{
    OvxStringT name;                 ///< The name of the preset.
    WCmnUI_ListItem* item = nullptr; ///< The item to fill; owned by the list.
    std::uint64_t position = 0;      ///< From 0, in the order of the preset names.
};

} // namespace Styles
