#pragma once

#include "host/data_binding/IReflectable.h"
#include "host/utils/OvxStringT.h"
#include "host/utils/OvxStringViewT.h"

#include <string>

namespace Workbench
{

/// Asks an enable with `identifier` as what the panel's commands are about. One that there is not, and one
/// that fails for want of a colour, counts as not enabled.
[[nodiscard]] bool IsEnabled(IReflectable& panel, const OvxStringT& identifier, OvxStringViewT enable);

/// Runs a command with `identifier` as what it is about.
void RunCommand(IReflectable& panel, const OvxStringT& identifier, OvxStringViewT command);

/// The name of the state of `identifier`, as the panel's icon tells it: the two ambiguous ones look the same
/// there.
[[nodiscard]] std::string AskState(IReflectable& panel, const OvxStringT& identifier);

} // namespace Workbench
