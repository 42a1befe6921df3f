#pragma once

#include "reference_host/document/Drawing.h"

#include <string>
#include <string_view>

namespace Fuzz
{

/// Opens the bytes of a drawing and demands what holds of reading and saving whatever they are: they are
/// refused with a DocumentError, or can be gone through; a drawing that nobody edited is saved as the same
/// bytes; one that was edited is saved as a file that can be read and holds the same; and when all edits are
/// undone the bytes are those that were read.
///
/// @param edits decides what is edited, see EditAsChosen(); empty for nothing.
void DemandSavingPromises(const std::string& bytes, std::string_view edits);

/// Demands that a drawing, as it is now, is saved as a file that can be read and holds the same.
void DemandItIsSaved(ReferenceHost::Drawing& drawing);

} // namespace Fuzz
