#pragma once

#include "apps/workbench/Report.h"
#include "host/utils/OvxStringT.h"

namespace Workbench
{

/// A value as people read it: a number in the row's unit, a choice by its label, other texts as they are.
/// Nothing for a row without a value.
[[nodiscard]] OvxStringT ValueToText(const RowReport& row);

} // namespace Workbench
