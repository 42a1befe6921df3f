#include "reference_host/preset_store/PresetPicture.h"

#include "host/style_model/CategoryNames.h"
#include "host/style_model/PropertyKey.h"
#include "host/utils/Any.h"

#include <gtest/gtest.h>

#include <utility>

namespace
{

using OvxUtils::Any;
using ReferenceHost::DescribePicture;
using ReferenceHost::PresetPicture;
using Rgb = CLR_COLORSPEC::Rgb;
using Styles::PropertyKey;
using Styles::Style;

PropertyKey Key(const wchar_t* text)
{
    return PropertyKey(Styles::PooledString<Styles::StringPool>(text));
}

class PictureOfAPreset : public testing::Test
{
protected:
    void Set(const wchar_t* category, const wchar_t* key, Any value)
    {
        preset.GetSubstyleAndCreateIfMissing(Key(category), Key(category));
        preset.SetPathProperty({Key(category), Key(key)}, std::move(value));
    }

    [[nodiscard]] PresetPicture Picture() const { return DescribePicture(preset); }

    Style preset{nullptr, Styles::StyleCategoryName};
};

} // namespace

TEST_F(PictureOfAPreset, TellsFillAndOutline)
{
    Set(L"fill", L"type", Any(Key(L"solid")));
    Set(L"fill", L"color", Any(CLR_COLORSPEC::FromRgb({1, 2, 3})));
    Set(L"fill", L"transparency", Any(40));
    Set(L"outline", L"type", Any(Key(L"dash")));
    Set(L"outline", L"dash", Any(OvxStringT(L"Fine")));
    Set(L"outline", L"color", Any(CLR_COLORSPEC::FromRgb({4, 5, 6})));
    Set(L"outline", L"transparency", Any(5));
    Set(L"outline", L"width", Any(250));

    const PresetPicture expected{{L"fill", L"solid", L"", Rgb{1, 2, 3}, 40, 0},
                                 {L"outline", L"dash", L"Fine", Rgb{4, 5, 6}, 5, 250}};
    EXPECT_EQ(Picture(), expected);
}

TEST_F(PictureOfAPreset, NamesTheDefinitionThatItsTypeUsesAndNoOther)
{
    Set(L"fill", L"type", Any(Key(L"hatch")));
    Set(L"fill", L"gradient", Any(OvxStringT(L"Dawn")));
    Set(L"fill", L"hatch", Any(OvxStringT(L"Crossed")));

    EXPECT_EQ(Picture().fill.definition, OvxStringT(L"Crossed"));
}

TEST_F(PictureOfAPreset, NamesNoDashOfASolidOutline)
{
    Set(L"outline", L"type", Any(Key(L"solid")));
    Set(L"outline", L"dash", Any(OvxStringT(L"Fine")));

    EXPECT_EQ(Picture().outline.definition, OvxStringT());
}

TEST_F(PictureOfAPreset, IsEmptyWhereThePresetIsSilent)
{
    const PresetPicture expected{{L"fill", {}, {}, {}, 0, 0}, {L"outline", {}, {}, {}, 0, 0}};
    EXPECT_EQ(Picture(), expected);
}

TEST(PictureOfACategory, TellsThatCategoryAlone)
{
    Style fill(nullptr, Styles::FillStyleCategoryName);
    fill.SetProperty(Key(L"color"), Any(CLR_COLORSPEC::FromGrey(9)));

    const PresetPicture picture = DescribePicture(fill);

    EXPECT_EQ(picture.fill.colour, (Rgb{9, 9, 9}));
    EXPECT_EQ(picture.outline.colour, std::nullopt);
}
