#pragma once

#include "apps/workbench/Selection.h"
#include "apps/workbench/Selector.h"
#include "apps/workbench/TargetHandover.h"
#include "reference_host/document/Drawing.h"

#include <vector>

namespace Workbench
{

/// Finds what a selector is about.
///
/// An object is found when one of the terms fits it or a group around it; each is found once, in document
/// order. Takes time in proportion to the objects and terms.
///
/// @throws SelectionError when nothing fits, with what there is; "all" alone may find nothing.
[[nodiscard]] Selection FindSelection(ReferenceHost::Drawing& drawing, const TargetHandover& handover,
                                      const Selector& selector);

/// A selection for each object of `selection`, in order, whose selector is the object's id. One that is not
/// of objects stays as it is.
[[nodiscard]] std::vector<Selection> SplitByObject(const Selection& selection);

} // namespace Workbench
