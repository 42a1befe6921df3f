#include "reference_host/preset_store/PresetPicture.h"

#include "host/style_model/CategoryNames.h"
#include "host/style_model/PropertyKey.h"
#include "host/utils/Any.h"

namespace ReferenceHost
{

namespace
{

using Styles::PropertyKey;
using Styles::Style;

/// What one category of a preset shows; nothing where the preset has no such category.
class Appearance
{
public:
    Appearance(const Style& preset, const PropertyKey& category)
        : style(preset.GetCategoryName() == category ? &preset : preset.GetSubstyle(category, false))
    {
    }

    template <class T>
    [[nodiscard]] const T* Find(OvxStringViewT key) const
    {
        const PropertyKey property{Styles::PooledString<Styles::StringPool>(OvxStringT(key))};
        return style == nullptr ? nullptr : style->GetProperty(property).TryGet<T>();
    }

    [[nodiscard]] OvxStringT Choice(OvxStringViewT key) const
    {
        const auto* choice = Find<PropertyKey>(key);
        return choice == nullptr ? OvxStringT() : choice->GetString();
    }

    [[nodiscard]] OvxStringT Text(OvxStringViewT key) const
    {
        const auto* text = Find<OvxStringT>(key);
        return text == nullptr ? OvxStringT() : *text;
    }

    [[nodiscard]] int Number(OvxStringViewT key) const
    {
        const auto* number = Find<int>(key);
        return number == nullptr ? 0 : *number;
    }

    [[nodiscard]] std::optional<CLR_COLORSPEC::Rgb> Colour() const
    {
        const auto* colour = Find<CLR_COLORSPEC>(L"color");
        return colour == nullptr ? std::nullopt : std::optional(colour->ToRgb());
    }

private:
    const Style* style;
};

/// Types that name a definition do so in the property that is called after them.
OvxStringT FillDefinition(const Appearance& fill, const OvxStringT& type)
{
    const bool isNamed = type == L"gradient" || type == L"hatch" || type == L"bitmap";
    return isNamed ? fill.Text(type) : OvxStringT();
}

} // namespace

PresetPicture DescribePicture(const Style& preset)
{
    const Appearance fill(preset, Styles::FillStyleCategoryName);
    const Appearance outline(preset, Styles::OutlineStyleCategoryName);
    PresetPicture picture;
    picture.fill.type = fill.Choice(L"type");
    picture.fill.definition = FillDefinition(fill, picture.fill.type);
    picture.fill.colour = fill.Colour();
    picture.fill.transparency = fill.Number(L"transparency");
    picture.outline.type = outline.Choice(L"type");
    picture.outline.dash = picture.outline.type == L"dash" ? outline.Text(L"dash") : OvxStringT();
    picture.outline.colour = outline.Colour();
    picture.outline.transparency = outline.Number(L"transparency");
    picture.outline.widthInHundredthMm = outline.Number(L"width");
    return picture;
}

} // namespace ReferenceHost
