#include "module/DefaultStylePresetManager.h"

#include "host/services/ConfigurationFolders.h"
#include "host/style_model/Style.h"
#include "tests/module/VirtualSlot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using Styles::PresetLocation;

/// Reaches the hooks, which are the manager's own affair, through the base that declares them.
struct Hooks : Styles::StylePresetManager
{
    static constexpr auto kFolder = &Hooks::GetPresetFolder;
    static constexpr auto kFileName = &Hooks::GetPresetFileName;
    static constexpr auto kFormat = &Hooks::GetPresetFormat;
    static constexpr auto kCustomDirectory = &Hooks::GetCustomConfigurationDirectory;
    static constexpr auto kDocumentsDirectory = &Hooks::GetUserDocumentsDirectory;
};

class DefaultPresetManager : public testing::Test
{
protected:
    DefaultStylePresetManager derived;
    Styles::StylePresetManager& manager = derived;
};

TEST_F(DefaultPresetManager, NamesNoFolder)
{
    EXPECT_EQ((manager.*Hooks::kFolder)(PresetLocation::CustomConfiguration, L"FillPresets"), L"");
    EXPECT_EQ((manager.*Hooks::kFolder)(PresetLocation::UserDocuments, L"FillPresets"), L"");
}

TEST_F(DefaultPresetManager, NamesNoFile)
{
    EXPECT_EQ((manager.*Hooks::kFileName)(PresetLocation::CustomConfiguration, L"Warm"), L"");
    EXPECT_EQ((manager.*Hooks::kFileName)(PresetLocation::UserDocuments, L"Warm"), L"");
}

TEST_F(DefaultPresetManager, NamesNoFormat)
{
    EXPECT_EQ((manager.*Hooks::kFormat)(), 0);
}

TEST_F(DefaultPresetManager, TellsTheHostsConfigurationFolder)
{
    if (INIGetCustomDir() == GetUserDocumentsOrvexSuiteDir())
        GTEST_SKIP() << "the host does not tell the two folders apart";

    EXPECT_EQ((manager.*Hooks::kCustomDirectory)(), INIGetCustomDir());
}

TEST_F(DefaultPresetManager, TellsTheHostsDocumentsFolder)
{
    EXPECT_EQ((manager.*Hooks::kDocumentsDirectory)(), GetUserDocumentsOrvexSuiteDir());
}

TEST_F(DefaultPresetManager, KeepsNoPreset)
{
    const Styles::Style style;

    EXPECT_FALSE(manager.AddPreset(L"FillPresets", L"Warm", style, true));
    EXPECT_FALSE(manager.DoesPresetNameExist(L"FillPresets", L"Warm"));
    EXPECT_THAT(manager.GetPresetNames(L"FillPresets"), testing::IsEmpty());
}

TEST(PresetManagerHooks, FollowTheDestructorInTheirOrder)
{
    EXPECT_EQ(VirtualSlot(Hooks::kFolder), 2U);
    EXPECT_EQ(VirtualSlot(Hooks::kFileName), 3U);
    EXPECT_EQ(VirtualSlot(Hooks::kFormat), 4U);
    EXPECT_EQ(VirtualSlot(Hooks::kCustomDirectory), 5U);
    EXPECT_EQ(VirtualSlot(Hooks::kDocumentsDirectory), 6U);
}

} // namespace
