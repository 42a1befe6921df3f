#pragma once

#include "host/Export.h"
#include "host/colour/CLR_COLORSPEC.h"
#include "host/style_model/Style.h"
#include "host/utils/OvxStringT.h"

#include <optional>

namespace ReferenceHost
{

/// What one category of a preset looks like.
struct PicturePart
{
    OvxStringT category;   ///< Its name: "fill" or "outline".
    OvxStringT type;       ///< "none", "solid", "gradient", "dash" ...; empty when the preset is silent.
    OvxStringT definition; ///< The name of the gradient, hatch, bitmap or dash; empty for the other types.
    std::optional<CLR_COLORSPEC::Rgb> colour;
    int transparency = 0;       ///< Per cent.
    int widthInHundredthMm = 0; ///< Of an outline; 0 is as thin as can be.

    friend bool operator==(const PicturePart&, const PicturePart&) = default;
};

/// What a preset looks like, as far as it shows in a small picture beside its name. A plain value.
struct PresetPicture
{
    PicturePart fill;
    PicturePart outline;

    friend bool operator==(const PresetPicture&, const PresetPicture&) = default;
};

/// The picture of a preset: what a whole style, or a style of one category, shows.
[[nodiscard]] STYLEPROPERTIES_HOST_API PresetPicture DescribePicture(const Styles::Style& preset);

} // namespace ReferenceHost
