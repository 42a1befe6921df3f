#include "host/style_model/StylePresetManager.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

/// A manager that has no place for presets.
class NowherePresetManager final : public Styles::StylePresetManager
{
private:
    OvxStringT GetPresetFolder(Styles::PresetLocation, OvxStringT) override { return {}; }

    OvxStringT GetPresetFileName(Styles::PresetLocation, OvxStringT) override { return {}; }

    int GetPresetFormat() override { return 0; }

    OvxStringT GetCustomConfigurationDirectory() override { return {}; }

    OvxStringT GetUserDocumentsDirectory() override { return {}; }
};

TEST(StylePresetManager, KeepsNothingWithoutAPlaceForIt)
{
    NowherePresetManager manager;

    EXPECT_FALSE(manager.AddPreset(L"FillPresets", L"Red", Styles::Style(), true));

    EXPECT_FALSE(manager.DoesPresetNameExist(L"FillPresets", L"Red"));
    EXPECT_THAT(manager.GetPresetNames(L"FillPresets"), testing::IsEmpty());
}

TEST(StylePresetManager, HasNothingToDeleteWithoutAPlaceForIt)
{
    NowherePresetManager manager;

    EXPECT_FALSE(manager.DeletePreset(L"FillPresets", L"Red"));
}

TEST(StylePresetManager, FindsEveryNameFreeWithoutAPlaceForPresets)
{
    NowherePresetManager manager;

    EXPECT_EQ(manager.GetUnusedPresetName(L"FillPresets", L"Red"), L"Red");
}

} // namespace
