#pragma once

#include "host/Export.h"
#include "host/colour/CLR_COLORSPEC.h"
#include "host/style_model/Style.h"
#include "host/utils/OvxStringT.h"

#include <optional>

namespace ReferenceHost
{

/// What a preset looks like, as far as it shows in a small picture beside its name. A plain value.
struct PresetPicture
{
    /// What fills it.
    struct Fill
    {
        OvxStringT type; ///< "none", "solid", "gradient", "hatch" or "bitmap"; empty when the preset is silent.
        OvxStringT definition; ///< The name of the gradient, hatch or bitmap; empty for the other types.
        std::optional<CLR_COLORSPEC::Rgb> colour;
        int transparency = 0; ///< Per cent.

        friend bool operator==(const Fill&, const Fill&) = default;
    };

    /// What is drawn round it.
    struct Outline
    {
        OvxStringT type; ///< "none", "dash" or "solid"; empty when the preset is silent.
        OvxStringT dash; ///< The name of the dash; empty for the other types.
        std::optional<CLR_COLORSPEC::Rgb> colour;
        int transparency = 0;         ///< Per cent.
        int widthInHundredthMm = 0;   ///< 0 is as thin as can be.

        friend bool operator==(const Outline&, const Outline&) = default;
    };

    Fill fill;
    Outline outline;

    friend bool operator==(const PresetPicture&, const PresetPicture&) = default;
};

/// The picture of a preset: what a whole style, or a style of one category, shows.
[[nodiscard]] STYLEPROPERTIES_HOST_API PresetPicture DescribePicture(const Styles::Style& preset);

} // namespace ReferenceHost
