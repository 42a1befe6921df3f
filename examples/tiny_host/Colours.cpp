// Colours in their models, and what they look like.

#include "host/colour/CLR_COLORSPEC.h"
#include "tiny_host/broken/Promises.h"

CLR_COLORSPEC CLR_COLORSPEC::FromRgb(Rgb rgb)
{
    CLR_COLORSPEC colour;
    colour.components = {rgb.red, rgb.green, rgb.blue, 0};
    return colour;
}

CLR_COLORSPEC CLR_COLORSPEC::FromCmyk(std::array<std::uint8_t, 4> cmyk)
{
    CLR_COLORSPEC colour;
    colour.model = kCmyk;
    colour.components = cmyk;
    return colour;
}

CLR_COLORSPEC CLR_COLORSPEC::FromGrey(std::uint8_t level)
{
    CLR_COLORSPEC colour;
    colour.model = kGrey;
    colour.components = {level, 0, 0, 0};
    return colour;
}

CLR_COLORSPEC CLR_COLORSPEC::FromResource(const OvxStringT& name, Rgb look)
{
    CLR_COLORSPEC colour = FromRgb(look);
    colour.model = kResource;
    colour.resource = Styles::PooledString<Styles::StringPool>(name);
    return colour;
}

CLR_COLORSPEC::Rgb CLR_COLORSPEC::ToRgb() const noexcept
{
    if (model == kGrey)
        return {components[0], components[0], components[0]};
    if (model != kCmyk)
        return {components[0], components[1], components[2]};

    // What an ink lets through, of what black lets through.
    const auto mix = [black = components[3]](int ink)
    { return static_cast<std::uint8_t>(((255 - ink) * (255 - black) + 127) / 255); };
    return {mix(components[0]), mix(components[1]), mix(components[2])};
}

bool CLR_COLORSPEC::BreakReference()
{
    if (model != kResource)
        return false;
    *this = TinyHost::Keeps(TinyHost::Promise::BrokenLinksKeepTheLook) ? FromRgb(ToRgb()) : CLR_COLORSPEC();
    return true;
}
