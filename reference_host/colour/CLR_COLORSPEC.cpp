#include "host/colour/CLR_COLORSPEC.h"

namespace
{

/// 255 times the product of two shares of 255, to the nearest.
std::uint8_t Multiply(int left, int right) noexcept
{
    return static_cast<std::uint8_t>((left * right + 127) / 255);
}

} // namespace

CLR_COLORSPEC CLR_COLORSPEC::FromRgb(Rgb rgb)
{
    CLR_COLORSPEC colour;
    colour.components = {rgb.red, rgb.green, rgb.blue, 0};
    return colour;
}

CLR_COLORSPEC CLR_COLORSPEC::FromCmyk(std::array<std::uint8_t, 4> cmyk)
{
    CLR_COLORSPEC colour;
    colour.components = cmyk;
    colour.model = kCmyk;
    return colour;
}

CLR_COLORSPEC CLR_COLORSPEC::FromGrey(std::uint8_t level)
{
    CLR_COLORSPEC colour;
    colour.components = {level, 0, 0, 0};
    colour.model = kGrey;
    return colour;
}

CLR_COLORSPEC CLR_COLORSPEC::FromResource(const OvxStringT& name, Rgb look)
{
    CLR_COLORSPEC colour = FromRgb(look);
    colour.resource = Styles::PooledString<Styles::StringPool>(name);
    colour.model = kResource;
    return colour;
}

CLR_COLORSPEC::Rgb CLR_COLORSPEC::ToRgb() const noexcept
{
    const auto& [first, second, third, fourth] = components;
    switch (model)
    {
    case kCmyk:
        // The naive conversion of CSS Color Module Level 5: what ink and black let through, multiplied.
        return {Multiply(255 - first, 255 - fourth), Multiply(255 - second, 255 - fourth),
                Multiply(255 - third, 255 - fourth)};
    case kGrey:
        return {first, first, first};
    default:
        return {first, second, third};
    }
}

bool CLR_COLORSPEC::BreakReference()
{
    if (model != kResource)
        return false;

    *this = FromRgb(ToRgb());
    return true;
}
