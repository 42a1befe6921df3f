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
OvxStringT DefinitionOf(const Appearance& part, const OvxStringT& type)
{
    const bool isNamed = type == L"gradient" || type == L"hatch" || type == L"bitmap" || type == L"dash";
    return isNamed ? part.Text(type) : OvxStringT();
}

PicturePart DescribePart(const Style& preset, const PropertyKey& category)
{
    const Appearance appearance(preset, category);
    PicturePart part;
    part.category = category.GetString();
    part.type = appearance.Choice(L"type");
    part.definition = DefinitionOf(appearance, part.type);
    part.colour = appearance.Colour();
    part.transparency = appearance.Number(L"transparency");
    part.widthInHundredthMm = appearance.Number(L"width");
    return part;
}

} // namespace

PresetPicture DescribePicture(const Style& preset)
{
    return {DescribePart(preset, Styles::FillStyleCategoryName),
            DescribePart(preset, Styles::OutlineStyleCategoryName)};
}

} // namespace ReferenceHost
