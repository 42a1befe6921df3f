#pragma once

#include "reference_host/document/SavedPart.h"
#include "reference_host/document/SavingContext.h"

namespace ReferenceHost
{

/// Brings the palette in the metadata of a file in line with the model: entries change in place, new ones go
/// behind the other metadata.
void WritePalette(const SavingContext& context, SavedPart& meta);

} // namespace ReferenceHost
