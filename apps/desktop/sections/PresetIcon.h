#pragma once

#include "reference_host/preset_store/PresetPicture.h"

#include <QIcon>

namespace Desktop
{

/// A small picture of a preset: a square with its fill and outline, as far as these show without the drawing
/// that gradients and the like are defined in.
[[nodiscard]] QIcon PaintPreset(const ReferenceHost::PresetPicture& picture);

} // namespace Desktop
