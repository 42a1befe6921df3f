#pragma once

#include "host/Export.h"
#include "host/style_model/PooledString.h"
#include "host/style_model/StringPool.h"

#include <array>
#include <compare>
#include <cstdint>

/// A colour: its model, up to four components, and for a resource colour the palette entry that it names.
///
/// A plain value, compared by all of these.
class STYLEPROPERTIES_HOST_API CLR_COLORSPEC
{
public:
    /// The codes that GetModel() gives.
    static constexpr int kRgb = 1;       ///< Red, green and blue.
    static constexpr int kCmyk = 2;      ///< Cyan, magenta, yellow and black.
    static constexpr int kGrey = 3;      ///< A level between black and white.
    static constexpr int kResource = 28; ///< A palette entry.

    /// Red, green and blue; the components 0 to 255.
    struct Rgb
    {
        std::uint8_t red = 0;   ///< 0 to 255.
        std::uint8_t green = 0; ///< 0 to 255.
        std::uint8_t blue = 0;  ///< 0 to 255.

        /// Equal in every component.
        friend bool operator==(const Rgb&, const Rgb&) = default;
    };

    /// Black, in the RGB model.
    CLR_COLORSPEC() = default;

    /// The colour with these components.
    [[nodiscard]] static CLR_COLORSPEC FromRgb(Rgb rgb);

    /// Cyan, magenta, yellow and black; 0 to 255 each.
    [[nodiscard]] static CLR_COLORSPEC FromCmyk(std::array<std::uint8_t, 4> cmyk);

    /// 0 is black, 255 is white.
    [[nodiscard]] static CLR_COLORSPEC FromGrey(std::uint8_t level);

    /// A colour that refers to the palette entry `name` and looks like `look`.
    [[nodiscard]] static CLR_COLORSPEC FromResource(const OvxStringT& name, Rgb look);

    /// One of the codes above; 28 refers to a colour resource.
    [[nodiscard]] int GetModel() const noexcept { return model; }

    /// What the colour looks like on a screen.
    [[nodiscard]] Rgb ToRgb() const noexcept;

    /// The palette entry that the colour refers to; empty unless the model is 28.
    [[nodiscard]] OvxStringT GetResourceName() const { return resource.GetString(); }

    /// Detaches the colour from its palette entry and keeps its look: the model becomes RGB.
    ///
    /// @returns whether there was a reference; a colour without one stays as it is.
    bool BreakReference();

    /// Equal in model, components and palette entry.
    friend bool operator==(const CLR_COLORSPEC&, const CLR_COLORSPEC&) = default;
    /// Some order, the same throughout one run of the process.
    friend auto operator<=>(const CLR_COLORSPEC&, const CLR_COLORSPEC&) = default;

private:
    Styles::PooledString<Styles::StringPool> resource; ///< The name of the palette entry; empty without one.
    std::array<std::uint8_t, 4> components{};          ///< In the model's order; unused ones are 0.
    std::uint8_t model = kRgb;
};
