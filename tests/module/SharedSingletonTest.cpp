// One StylesCommon for the process, with real modules that come and go. This program does not link the
// library: it comes with the first module that needs it and goes with the last.

#include "host/utils/Singleton.h"
#include "host/utils/SingletonLibrary.h"
#include "tests/module/OpenedLibrary.h"
#include "tests/module/RecordingApplication.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <barrier>
#include <cstddef>
#include <optional>
#include <string>
#include <thread>
#include <typeinfo>
#include <vector>

// Known here by its name alone.
class StylesCommon;

namespace
{

using testing::Each;

constexpr std::array<const char*, 2> kModulePaths{STYLES_COMMON_MODULE_ONE, STYLES_COMMON_MODULE_TWO};

/// In which order the two modules come and go, and which of them makes the instance. Each is 0 or 1.
struct ModuleOrder
{
    std::size_t loadedFirst;
    std::size_t maker;
    std::size_t unloadedFirst;
};

std::string NameOf(const testing::TestParamInfo<ModuleOrder>& info)
{
    constexpr std::array<const char*, 2> names{"One", "Two"};
    const ModuleOrder& order = info.param;
    return std::string("Load") + names.at(order.loadedFirst) + "MakeIn" + names.at(order.maker) + "Unload" +
           names.at(order.unloadedFirst);
}

/// Tells whether the process-wide registry holds anything for StylesCommon, without making it.
bool HasRegistryEntry()
{
    const OvxUtils::basic_safe_function<void()> unused([] {});
    const auto makeNothing = [](OvxUtils::SingletonEntry& /*entry*/, bool /*create*/) {};
    return OvxUtils::SingletonLibrary::GetEntryForType(typeid(OvxUtils::Singleton<StylesCommon>), makeNothing,
                                                       false, unused) != nullptr;
}

/// The two modules, loaded, and unloaded when the test ends.
class TwoModules : public testing::Test
{
protected:
    void Load(std::size_t which)
    {
        libraries.at(which).emplace(kModulePaths.at(which));
        ways.at(which) = &libraries.at(which)->StylesCommonWays();
    }

    void Unload(std::size_t which)
    {
        ways.at(which) = nullptr;
        libraries.at(which).reset();
    }

    const StylesCommonModule& Module(std::size_t which) const { return *ways.at(which); }

    RecordingApplication application;

private:
    std::array<std::optional<OpenedLibrary>, 2> libraries;
    std::array<const StylesCommonModule*, 2> ways{};
};

class SharedStylesCommon : public TwoModules, public testing::WithParamInterface<ModuleOrder>
{
protected:
    SharedStylesCommon()
    {
        Load(order.loadedFirst);
        Load(1 - order.loadedFirst);
    }

    const ModuleOrder order = GetParam();
    const std::size_t user = 1 - order.maker; ///< The module that finds what the other made.
    const std::size_t unloadedLast = 1 - order.unloadedFirst;
};

TEST_P(SharedStylesCommon, IsOneForTheProcess)
{
    StylesCommon* made = Module(order.maker).instance();

    EXPECT_EQ(Module(user).instance(), made);
    EXPECT_EQ(Module(order.maker).instanceOfLibrary(), made);
    EXPECT_EQ(Module(user).instanceOfLibrary(), made);
}

TEST_P(SharedStylesCommon, HoldsOneApplicationForAllModules)
{
    Module(order.maker).initialize(&application);

    EXPECT_EQ(Module(user).app(), &application);
}

TEST_P(SharedStylesCommon, IsNotMadeByAskingWhetherItIsThere)
{
    EXPECT_FALSE(Module(order.maker).hasInstance());
    EXPECT_FALSE(Module(user).hasInstance());
    EXPECT_FALSE(Module(user).hasInstanceOfLibrary());

    EXPECT_FALSE(HasRegistryEntry());
}

TEST_P(SharedStylesCommon, IsNotMadeByReleasingIt)
{
    Module(order.maker).releaseInstance(true);

    EXPECT_FALSE(HasRegistryEntry());
    EXPECT_FALSE(Module(user).hasInstance());
}

TEST_P(SharedStylesCommon, IsFoundByAModuleThatLookedForItTooEarly)
{
    ASSERT_FALSE(Module(user).hasInstance());

    StylesCommon* made = Module(order.maker).instance();

    EXPECT_TRUE(Module(user).hasInstance());
    EXPECT_TRUE(Module(user).hasInstanceOfLibrary());
    EXPECT_EQ(Module(user).instance(), made);
}

TEST_P(SharedStylesCommon, IsMadeByAModuleThatLookedForItFirst)
{
    ASSERT_FALSE(Module(order.maker).hasInstance());

    EXPECT_NE(Module(order.maker).instance(), nullptr);
    EXPECT_TRUE(HasRegistryEntry());
}

TEST_P(SharedStylesCommon, IsReleasedForAllModules)
{
    Module(order.maker).initialize(&application);

    Module(user).releaseInstance(false);

    EXPECT_FALSE(Module(order.maker).hasInstance());
    EXPECT_FALSE(Module(order.maker).hasInstanceOfLibrary());
    EXPECT_EQ(Module(order.maker).app(), nullptr) << "a fresh instance";
    EXPECT_EQ(Module(order.maker).instance(), Module(user).instance());
}

TEST_P(SharedStylesCommon, ComesBackInTheOtherModuleAfterItWasReleasedForGood)
{
    Module(order.maker).initialize(&application);
    Module(order.maker).releaseInstance(true);

    Module(user).initialize(&application);

    EXPECT_EQ(Module(order.maker).app(), &application);
    EXPECT_EQ(Module(order.maker).instance(), Module(user).instance());
}

TEST_P(SharedStylesCommon, GoesWithTheModuleThatMadeItAndWithNoOther)
{
    Module(order.maker).initialize(&application);
    const bool makerGoes = order.unloadedFirst == order.maker;

    Unload(order.unloadedFirst);

    EXPECT_EQ(Module(unloadedLast).hasInstance(), !makerGoes);
    EXPECT_EQ(Module(unloadedLast).hasInstanceOfLibrary(), !makerGoes);
    EXPECT_EQ(HasRegistryEntry(), !makerGoes);
}

TEST_P(SharedStylesCommon, StaysAsItIsOrComesFreshWhenAModuleIsGone)
{
    Module(order.maker).initialize(&application);
    IOrvexCmn_App* expected = order.unloadedFirst == order.maker ? nullptr : &application;

    Unload(order.unloadedFirst);

    EXPECT_EQ(Module(unloadedLast).app(), expected);
    EXPECT_EQ(Module(unloadedLast).instance(), Module(unloadedLast).instanceOfLibrary());
}

TEST_P(SharedStylesCommon, StaysWithTheLibraryThatMadeItWhenAModuleGoes)
{
    static_cast<void>(Module(order.maker).instanceOfLibrary());
    Module(user).initialize(&application);

    Unload(order.unloadedFirst);

    EXPECT_TRUE(Module(unloadedLast).hasInstance());
    EXPECT_EQ(Module(unloadedLast).app(), &application);
}

TEST_P(SharedStylesCommon, GoesWithItsMakerAlsoWhenAnotherModuleRemadeIt)
{
    Module(order.maker).initialize(&application);
    Module(order.maker).releaseInstance(false);
    Module(user).initialize(&application);

    Unload(order.maker);

    EXPECT_FALSE(Module(user).hasInstance());
    EXPECT_EQ(Module(user).app(), nullptr);
}

TEST_P(SharedStylesCommon, IsFoundAgainByAModuleThatWasReloaded)
{
    Module(order.maker).initialize(&application);
    Unload(user);

    Load(user);

    EXPECT_TRUE(Module(user).hasInstance());
    EXPECT_EQ(Module(user).app(), &application);
    EXPECT_EQ(Module(user).instance(), Module(order.maker).instance());
}

TEST_P(SharedStylesCommon, LetsTheFirstModuleReallyGo)
{
    static_cast<void>(Module(order.maker).instance());
    static_cast<void>(Module(user).instance());

    Unload(order.unloadedFirst);

    EXPECT_FALSE(OpenedLibrary::IsLoaded(kModulePaths.at(order.unloadedFirst)));
    EXPECT_TRUE(OpenedLibrary::IsLoaded(kModulePaths.at(unloadedLast)));
    EXPECT_TRUE(OpenedLibrary::IsLoaded(STYLE_PROPERTIES_LIBRARY));
}

TEST_P(SharedStylesCommon, LetsEverythingReallyGoInTheEnd)
{
    Module(order.maker).initialize(&application);
    Module(user).useFallbacks();

    Unload(order.unloadedFirst);
    Unload(unloadedLast);

    EXPECT_FALSE(HasRegistryEntry());
    EXPECT_FALSE(OpenedLibrary::IsLoaded(kModulePaths.at(0)));
    EXPECT_FALSE(OpenedLibrary::IsLoaded(kModulePaths.at(1)));
    EXPECT_FALSE(OpenedLibrary::IsLoaded(STYLE_PROPERTIES_LIBRARY));
}

INSTANTIATE_TEST_SUITE_P(InEveryOrder, SharedStylesCommon,
                         testing::Values(ModuleOrder{0, 0, 0}, ModuleOrder{0, 0, 1}, ModuleOrder{0, 1, 0},
                                         ModuleOrder{0, 1, 1}, ModuleOrder{1, 0, 0}, ModuleOrder{1, 0, 1},
                                         ModuleOrder{1, 1, 0}, ModuleOrder{1, 1, 1}),
                         NameOf);

/// Two modules, and eight threads that set off together.
class EightThreads : public TwoModules
{
protected:
    static constexpr std::size_t kThreads = 8;

    EightThreads()
    {
        Load(0);
        Load(1);
    }

    /// What each thread is given when all ask at once: by turns through one module, the other, and the
    /// library.
    std::vector<StylesCommon*> AskAtOnce()
    {
        std::vector<StylesCommon*> given(kThreads);
        std::barrier start(static_cast<std::ptrdiff_t>(kThreads));
        std::vector<std::thread> threads;
        for (std::size_t i = 0; i < kThreads; ++i)
        {
            threads.emplace_back(
                [this, &given, &start, i]
                {
                    const std::array askers{Module(0).instance, Module(1).instance,
                                            Module(0).instanceOfLibrary};
                    start.arrive_and_wait();
                    given.at(i) = askers.at(i % askers.size())();
                });
        }
        for (std::thread& thread : threads)
            thread.join();
        return given;
    }
};

TEST_F(EightThreads, GetOneInstanceOnFirstUse)
{
    for (int round = 0; round < 25; ++round)
    {
        const std::vector<StylesCommon*> given = AskAtOnce();

        ASSERT_NE(given.front(), nullptr);
        ASSERT_THAT(given, Each(given.front())) << "round " << round;
        Unload(0);
        Unload(1);
        Load(0);
        Load(1);
    }
}

TEST_F(EightThreads, GetOneInstanceAfterARelease)
{
    for (int round = 0; round < 25; ++round)
    {
        const std::vector<StylesCommon*> given = AskAtOnce();

        ASSERT_NE(given.front(), nullptr);
        ASSERT_THAT(given, Each(given.front())) << "round " << round;
        Module(0).releaseInstance(false);
    }
}

// What is handed out may be released by others at once: it is not looked into here.
TEST_F(EightThreads, MayMakeAndReleaseItAtTheSameTime)
{
    std::barrier start(static_cast<std::ptrdiff_t>(kThreads));
    std::vector<std::thread> threads;

    for (std::size_t i = 0; i < kThreads; ++i)
    {
        threads.emplace_back(
            [this, &start, i]
            {
                const std::array makers{Module(0).instance, Module(1).instance, Module(0).instanceOfLibrary,
                                        Module(1).instanceOfLibrary};
                const std::array releasers{Module(0).releaseInstance, Module(1).releaseInstance,
                                           Module(0).releaseInstanceOfLibrary,
                                           Module(1).releaseInstanceOfLibrary};
                start.arrive_and_wait();
                for (int round = 0; round < 100; ++round)
                {
                    if (i % 2 == 0)
                        static_cast<void>(makers.at(i / 2)());
                    else
                        releasers.at(i / 2)(round % 2 == 0);
                    static_cast<void>(Module(i % 2).hasInstance());
                }
            });
    }
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_THAT(AskAtOnce(), Each(Module(0).instance()));
}

TEST_F(EightThreads, SeeNoInstanceWhileNobodyMakesOne)
{
    std::array<bool, kThreads> seen{};
    std::barrier start(static_cast<std::ptrdiff_t>(kThreads));
    std::vector<std::thread> threads;

    for (std::size_t i = 0; i < kThreads; ++i)
    {
        threads.emplace_back(
            [this, &seen, &start, i]
            {
                start.arrive_and_wait();
                seen.at(i) = Module(i % 2).hasInstance();
            });
    }
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_THAT(seen, Each(false));
    EXPECT_FALSE(HasRegistryEntry());
}

} // namespace
