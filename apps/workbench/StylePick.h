#pragma once

#include "host/utils/OvxStringT.h"

#include <variant>

namespace Workbench
{

/// Picks the style of that name, wherever in the lists it stands.
struct PickByName
{
    OvxStringT name; ///< As the sheet has it.
};

/// Picks the entry of the main list with that id.
struct PickById
{
    unsigned id = 0;
};

/// Picks the entry with that id of the list of styles that the main list does not show.
struct PickByMoreId
{
    unsigned id = 0;
};

/// Picks the entry that means no style. Acts on the first target only.
struct PickNone
{
};

/// What is picked from the list of styles of a panel.
using StylePick = std::variant<PickByName, PickById, PickByMoreId, PickNone>;

/// What became of a pick.
struct Restyled
{
    OvxStringT style;               ///< What the first target inherits from now; empty for nothing.
    bool isFirstTargetOnly = false; ///< There were more targets, and the entry acts on one.
};

} // namespace Workbench
