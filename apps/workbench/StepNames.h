#pragma once

#include "apps/workbench/RowPlace.h"
#include "host/utils/OvxStringT.h"

#include <vector>

namespace Workbench
{

/// What steps of history are called, in the language in force. Each is the key of a pattern with at most one
/// insert.
inline constexpr OvxStringViewT kSetStep = L"step.set";
inline constexpr OvxStringViewT kClearStep = L"step.clear";
inline constexpr OvxStringViewT kRevertStep = L"step.revert";
inline constexpr OvxStringViewT kApplyToParentStep = L"step.apply-to-parent";
inline constexpr OvxStringViewT kBreakLinkStep = L"step.break-link";
inline constexpr OvxStringViewT kCreateStyleStep = L"step.create-style";
inline constexpr OvxStringViewT kRestyleStep = L"step.restyle";
inline constexpr OvxStringViewT kRemoveStyleStep = L"step.remove-style";
inline constexpr OvxStringViewT kApplyPresetStep = L"step.apply-preset";
inline constexpr OvxStringViewT kPaletteStep = L"step.palette";

/// The name of a step on these rows and panels: "Set Fill Colour". Several rows of one panel are named by the
/// panel, those of several panels by a word for all.
[[nodiscard]] OvxStringT NameStep(OvxStringViewT patternKey, const std::vector<RowPlace>& places);

/// The name of a step on something that has a name of its own.
[[nodiscard]] OvxStringT NameStep(OvxStringViewT patternKey, const OvxStringT& subject);

/// The name of a group of edits.
[[nodiscard]] OvxStringT NameGroup();

} // namespace Workbench
