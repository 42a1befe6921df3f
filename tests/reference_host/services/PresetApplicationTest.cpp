#include "reference_host/preset_store/PresetPicture.h"
#include "reference_host/services/PresetManager.h"
#include "tests/reference_host/document/ScratchFolder.h"
#include "tests/reference_host/services/EditedDrawing.h"

#include <cstdlib>

using Styles::Style;
using testing::ElementsAreArray;

namespace
{

/// A drawing, and a preset "Glow" of fills that sets the colour 0x44 and no transparency, in a folder of the
/// test.
class AppliedPreset : public EditedDrawing
{
protected:
    AppliedPreset()
    {
        setenv("STYLEPROPS_CONFIG_DIR", scratch.GetPath().c_str(), 1);
        Style preset(nullptr, Styles::StyleCategoryName);
        preset.SetPathProperty({Key(L"fill"), Key(L"color")}, Colour(0x44));
        preset.SetPathProperty({Key(L"outline"), Key(L"width")}, OvxUtils::Any(900));
        EXPECT_TRUE(keeper.AddPreset(L"FillPresets", L"Glow", preset, /*replace=*/false));
        source.SetPresetKeeper(&keeper);
        source.SetPresetCategory(L"FillPresets", Styles::FillStyleCategoryName);
    }

    ~AppliedPreset() override { unsetenv("STYLEPROPS_CONFIG_DIR"); }

    [[nodiscard]] OvxUtils::Any ValueOf(int shape, const wchar_t* category, const wchar_t* key)
    {
        return Shape(shape)->GetPathProperty({Key(category), Key(key)});
    }

    ScratchFolder scratch;
    ReferenceHost::PresetManager keeper;
};

} // namespace

TEST_F(AppliedPreset, ChangesTheSubstyleItIsAboutAndNoOther)
{
    source.ApplyPresetToStyles(L"Glow", L"FillPresets", {Shape(1), Shape(3)});

    EXPECT_EQ(ValueOf(1, L"fill", L"color"), Colour(0x44));
    EXPECT_EQ(ValueOf(3, L"fill", L"color"), Colour(0x44));
    EXPECT_EQ(ValueOf(1, L"outline", L"width"), OvxUtils::Any(100));
}

TEST_F(AppliedPreset, LetsTheOtherPropertiesOfTheSubstyleBeInherited)
{
    Shape(1)->SetPathProperty({Key(L"fill"), Key(L"transparency")}, OvxUtils::Any(50));

    source.ApplyPresetToStyles(L"Glow", L"FillPresets", {Shape(1)});

    EXPECT_TRUE(ValueOf(1, L"fill", L"transparency").IsEmpty());
}

TEST_F(AppliedPreset, IsOneStepThatCanBeUndone)
{
    const std::vector<std::string> before = Dump();

    source.ApplyPresetToStyles(L"Glow", L"FillPresets", {Shape(1), Shape(2), Shape(3)});

    EXPECT_EQ(history.GetStepCount(), 1U);
    ExpectExactUndo(before);
}

TEST_F(AppliedPreset, LandsInDefaultStylesToo)
{
    source.ApplyPresetToStyles(L"Glow", L"FillPresets", source.GetDefaultStyles());

    EXPECT_EQ(source.GetDefaultStyles().front()->GetPathProperty({Key(L"fill"), Key(L"color")}),
              Colour(0x44));
}

TEST_F(AppliedPreset, ChangesNothingWhenItIsNotThereOrNobodyKnowsItsCategory)
{
    const std::vector<std::string> before = Dump();

    source.ApplyPresetToStyles(L"Gone", L"FillPresets", {Shape(1)});
    source.ApplyPresetToStyles(L"Glow", L"OutlinePresets", {Shape(1)});
    source.ApplyPresetToStyles(L"Glow", L"FillPresets", {nullptr});
    source.SetPresetKeeper(nullptr);
    source.ApplyPresetToStyles(L"Glow", L"FillPresets", {Shape(1)});

    EXPECT_THAT(Dump(), ElementsAreArray(before));
    EXPECT_EQ(history.GetStepCount(), 0U);
}

TEST_F(AppliedPreset, ReachesObjectsByTheirNumbers)
{
    source.ApplyPresetToObjects(L"Glow", L"FillPresets",
                                {document.NumberOf(Shape(2)), document.NumberOf(nullptr)});

    EXPECT_EQ(ValueOf(2, L"fill", L"color"), Colour(0x44));
    EXPECT_EQ(history.GetStepCount(), 1U);
}

TEST_F(AppliedPreset, IsListedWithItsNamePlaceAndPicture)
{
    WCmnUI_ListItem item;

    source.FillPresetItems({{L"Glow", &item, 3}}, L"FillPresets");

    EXPECT_EQ(item.GetText(), OvxStringT(L"Glow"));
    EXPECT_EQ(item.GetIndex(), 3);
    const auto* picture = item.GetPicture().TryGet<ReferenceHost::PresetPicture>();
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->outline.widthInHundredthMm, 900);
}

TEST_F(AppliedPreset, IsListedWithoutAPictureWhenItIsGone)
{
    WCmnUI_ListItem item;

    source.FillPresetItems({{L"Gone", &item, 0}}, L"FillPresets");

    EXPECT_EQ(item.GetText(), OvxStringT(L"Gone"));
    EXPECT_TRUE(item.GetPicture().IsEmpty());
}
