// What the library brings when it is loaded and takes along when it is unloaded. This program does not link
// it.

#include "host/data_binding/IDataSourceFactory.h"
#include "host/data_binding/IDataSourceRegistrar.h"
#include "tests/module/OpenedLibrary.h"
#include "tests/module/RecordingApplication.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace
{

IDataSourceFactory* FindStylePresetsFactory()
{
    return IDataSourceRegistrar::GetInstance().FindFactory(L"StylePresets");
}

std::vector<IDataSourceFactory*> AllFactories()
{
    return IDataSourceRegistrar::GetInstance().GetFactories();
}

TEST(LoadingTheLibrary, RegistersOneFactory)
{
    const std::vector<IDataSourceFactory*> before = AllFactories();
    ASSERT_EQ(FindStylePresetsFactory(), nullptr);

    const OpenedLibrary library(STYLE_PROPERTIES_LIBRARY);

    EXPECT_EQ(AllFactories().size(), before.size() + 1);
    ASSERT_NE(FindStylePresetsFactory(), nullptr);
    EXPECT_EQ(FindStylePresetsFactory()->GetTypeKey(), L"StylePresets");
}

TEST(LoadingTheLibrary, MakesNoInstance)
{
    const OpenedLibrary module(STYLES_COMMON_MODULE_ONE);

    EXPECT_FALSE(module.StylesCommonWays().hasInstance());
    EXPECT_FALSE(module.StylesCommonWays().hasInstanceOfLibrary());
}

TEST(UnloadingTheLibrary, UnregistersItsFactory)
{
    const std::vector<IDataSourceFactory*> before = AllFactories();
    OpenedLibrary library(STYLE_PROPERTIES_LIBRARY);

    library.Close();

    EXPECT_EQ(AllFactories(), before);
    EXPECT_EQ(FindStylePresetsFactory(), nullptr);
}

TEST(UnloadingTheLibrary, LeavesNothingOfItBehind)
{
    OpenedLibrary library(STYLE_PROPERTIES_LIBRARY);

    library.Close();

    EXPECT_FALSE(OpenedLibrary::IsLoaded(STYLE_PROPERTIES_LIBRARY));
}

TEST(UnloadingTheLibrary, EndsAnInstanceThatItMade)
{
    RecordingApplication application;
    {
        const OpenedLibrary module(STYLES_COMMON_MODULE_ONE);
        static_cast<void>(module.StylesCommonWays().instanceOfLibrary());
        module.StylesCommonWays().initialize(&application);
    }

    const OpenedLibrary again(STYLES_COMMON_MODULE_ONE);

    EXPECT_FALSE(again.StylesCommonWays().hasInstanceOfLibrary());
    EXPECT_EQ(again.StylesCommonWays().app(), nullptr);
}

TEST(TheLibrary, LetsTheModuleGoThatBroughtItAlong)
{
    OpenedLibrary module(EXPORTING_MODULE);
    const OpenedLibrary library(STYLE_PROPERTIES_LIBRARY);

    module.Close();

    EXPECT_FALSE(OpenedLibrary::IsLoaded(EXPORTING_MODULE));
    EXPECT_TRUE(OpenedLibrary::IsLoaded(STYLE_PROPERTIES_LIBRARY));
}

TEST(TheLibrary, IsLoadedUsedAndUnloadedAHundredTimes)
{
    const std::vector<IDataSourceFactory*> before = AllFactories();
    RecordingApplication application;

    for (int round = 0; round < 100; ++round)
    {
        {
            const OpenedLibrary module(round % 2 == 0 ? STYLES_COMMON_MODULE_ONE : STYLES_COMMON_MODULE_TWO);
            const StylesCommonModule& ways = module.StylesCommonWays();
            ASSERT_EQ(ways.app(), nullptr) << "round " << round;
            ways.initialize(&application);
            ways.useFallbacks();
            ASSERT_NE(FindStylePresetsFactory(), nullptr) << "round " << round;
        }
        ASSERT_FALSE(OpenedLibrary::IsLoaded(STYLE_PROPERTIES_LIBRARY)) << "round " << round;
        ASSERT_EQ(AllFactories(), before) << "round " << round;
    }
}

} // namespace
