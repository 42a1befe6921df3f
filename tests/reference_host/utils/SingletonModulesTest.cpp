#include "tests/reference_host/utils/singleton_module/SingletonModule.h"

#include "host/colour/CLR_COLORSPEC.h"
#include "host/style_model/PropertyKey.h"
#include "host/utils/OvxStringT.h"

#include <gtest/gtest.h>

#include <dlfcn.h>

#include <atomic>
#include <set>
#include <string>
#include <thread>
#include <utility>
#include <vector>

// One singleton type, used by two real modules that come and go.
namespace
{

/// A module that is loaded for as long as this lives.
class LoadedModule
{
public:
    LoadedModule(std::string modulePath, InstanceEvents& events)
        : path(std::move(modulePath)), handle(dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL))
    {
        if (handle == nullptr)
        {
            ADD_FAILURE() << dlerror();
            return;
        }
        // Data pointers and function pointers are one on every system that has dlsym.
        module = reinterpret_cast<GetSingletonModuleFunction>(dlsym(handle, "GetSingletonModule"))();
        module->reportTo(&events);
    }

    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    ~LoadedModule() { Unload(); }

    void Unload()
    {
        if (handle != nullptr)
            dlclose(std::exchange(handle, nullptr));
    }

    /// Tells whether the system still has the module in memory.
    [[nodiscard]] bool IsInMemory() const
    {
        void* const found = dlopen(path.c_str(), RTLD_NOW | RTLD_NOLOAD);
        if (found != nullptr)
            dlclose(found);
        return found != nullptr;
    }

    const SingletonModule* operator->() const { return module; }

private:
    std::string path;
    void* handle;
    const SingletonModule* module = nullptr;
};

/// The modules in both orders: the parameter tells which of them makes the instance.
class SingletonModules : public testing::TestWithParam<bool>
{
protected:
    [[nodiscard]] static std::string MakerPath() { return GetParam() ? FIRST_MODULE : SECOND_MODULE; }

    [[nodiscard]] static std::string OtherPath() { return GetParam() ? SECOND_MODULE : FIRST_MODULE; }

    InstanceEvents events;
};

TEST_P(SingletonModules, ShareOneInstance)
{
    const LoadedModule maker(MakerPath(), events);
    const LoadedModule other(OtherPath(), events);

    void* const made = maker->getInstance();

    EXPECT_EQ(other->getInstance(), made);
    EXPECT_EQ(events.made, 1);
    EXPECT_EQ(events.ended, 0);
}

TEST_P(SingletonModules, SeeTheInstanceThatTheOtherMade)
{
    const LoadedModule maker(MakerPath(), events);
    const LoadedModule other(OtherPath(), events);
    EXPECT_FALSE(other->hasInstance());

    maker->getInstance();

    EXPECT_TRUE(other->hasInstance());
}

TEST_P(SingletonModules, CreateNothingWhenTheyOnlyAskOrRelease)
{
    const LoadedModule maker(MakerPath(), events);
    const LoadedModule other(OtherPath(), events);

    maker->releaseInstance(true);
    other->releaseInstance(false);

    EXPECT_FALSE(maker->hasInstance());
    EXPECT_FALSE(other->hasInstance());
    EXPECT_EQ(events.made, 0);
}

TEST_P(SingletonModules, KeepTheInstanceWhenTheOneGoesThatOnlyUsedIt)
{
    const LoadedModule maker(MakerPath(), events);
    LoadedModule other(OtherPath(), events);
    void* const made = maker->getInstance();
    other->getInstance();

    other.Unload();

    EXPECT_FALSE(other.IsInMemory());
    EXPECT_EQ(maker->getInstance(), made);
    EXPECT_EQ(events.ended, 0);
}

TEST_P(SingletonModules, EndTheInstanceWhenItsMakerGoes)
{
    LoadedModule maker(MakerPath(), events);
    const LoadedModule other(OtherPath(), events);
    maker->getInstance();
    other->getInstance();

    maker.Unload();

    EXPECT_FALSE(maker.IsInMemory());
    EXPECT_EQ(events.ended, 1);
    EXPECT_FALSE(other->hasInstance());
}

TEST_P(SingletonModules, MakeAFreshInstanceAfterTheMakerWent)
{
    LoadedModule maker(MakerPath(), events);
    const LoadedModule other(OtherPath(), events);
    maker->getInstance();
    other->getInstance();
    maker.Unload();

    EXPECT_EQ(other->getAnswer(), 42);

    EXPECT_EQ(events.made, 2);
    EXPECT_EQ(events.ended, 1);
}

TEST_P(SingletonModules, EndEveryInstanceOnceHoweverOftenTheyComeAndGo)
{
    for (int round = 0; round < 20; ++round)
    {
        LoadedModule maker(MakerPath(), events);
        LoadedModule other(OtherPath(), events);
        maker->getInstance();
        other->getInstance();
        maker.Unload();
        other->getInstance();
        const LoadedModule again(MakerPath(), events);
        EXPECT_EQ(again->getInstance(), other->getInstance());
    }

    EXPECT_EQ(events.made, 40);
    EXPECT_EQ(events.ended, 40);
}

TEST_P(SingletonModules, KeepUsingTheMakersCodeForAnInstanceThatTheOtherAskedFor)
{
    const LoadedModule maker(MakerPath(), events);
    LoadedModule other(OtherPath(), events);
    maker->getInstance();
    maker->releaseInstance(false);
    other->getInstance();

    other.Unload();

    EXPECT_EQ(maker->getAnswer(), 42);
    EXPECT_EQ(events.made, 2);
    EXPECT_EQ(events.ended, 1);
}

TEST_P(SingletonModules, MakeAFreshInstanceAfterARelease)
{
    const LoadedModule maker(MakerPath(), events);
    const LoadedModule other(OtherPath(), events);
    maker->getInstance();

    other->releaseInstance(true);

    EXPECT_FALSE(maker->hasInstance());
    EXPECT_EQ(events.ended, 1);
    EXPECT_EQ(maker->getAnswer(), 42);
    EXPECT_EQ(events.made, 2);
}

TEST_P(SingletonModules, EndWhatTheirExitRoutinesAskedForLate)
{
    LoadedModule maker(MakerPath(), events);
    // Statics go in the reverse order: the finaliser, the late question, the callback that the first query
    // made.
    (void)maker->hasInstance();
    maker->askWhileUnloading();
    maker->getInstance();

    maker.Unload();

    EXPECT_FALSE(maker.IsInMemory());
    EXPECT_EQ(events.made, 2);
    EXPECT_EQ(events.ended, 2);
}

TEST_P(SingletonModules, AreUnloadedThoughNeverUsed)
{
    LoadedModule maker(MakerPath(), events);

    maker.Unload();

    EXPECT_FALSE(maker.IsInMemory());
    EXPECT_EQ(events.made, 0);
}

TEST_P(SingletonModules, GiveEightThreadsAtOnceOneInstance)
{
    constexpr int kThreads = 8;
    const LoadedModule maker(MakerPath(), events);
    const LoadedModule other(OtherPath(), events);
    std::vector<void*> seen(kThreads);
    std::atomic<int> waiting = 0;

    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i)
    {
        threads.emplace_back(
            [&, i]
            {
                ++waiting;
                while (waiting < kThreads)
                    std::this_thread::yield();
                const LoadedModule& asked = i % 2 == 0 ? maker : other;
                (void)asked->hasInstance();
                seen[static_cast<std::size_t>(i)] = asked->getInstance();
            });
    }
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_EQ(std::set<void*>(seen.begin(), seen.end()).size(), 1u);
    EXPECT_EQ(events.made, 1);
}

TEST_P(SingletonModules, LeaveValuesBehindThatOutliveThem)
{
    OvxUtils::Any number;
    OvxUtils::Any text;
    OvxUtils::Any key;
    OvxUtils::Any colour;
    LoadedModule maker(MakerPath(), events);
    maker->storeValues(number, text, key, colour);

    maker.Unload();

    ASSERT_FALSE(maker.IsInMemory());
    EXPECT_EQ(OvxUtils::Any(number).Get<int>(), 7);
    EXPECT_EQ(OvxUtils::Any(text), OvxUtils::Any(OvxStringT(L"a text that lies on the heap")));
    EXPECT_EQ(OvxUtils::Any(key).Get<Styles::PropertyKey>().GetString(), L"solid");
    EXPECT_EQ(OvxUtils::Any(colour).Get<CLR_COLORSPEC>().GetResourceName(), L"Brand");
}

INSTANTIATE_TEST_SUITE_P(InBothOrders, SingletonModules, testing::Bool(),
                         [](const auto& parameter)
                         { return parameter.param ? "FirstMakes" : "SecondMakes"; });

} // namespace
