#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/data_binding/IDataSourceRegistrar.h"
#include "host/style_model/StyleManager.h"
#include "host/utils/SafeFunction.h"
#include "host/utils/Singleton.h"
#include "host/utils/SingletonLibrary.h"

#include <gtest/gtest.h>

#include <array>
#include <thread>
#include <typeindex>

HOST_TESTS_SUBJECT(SharedInstancesTest);

// One instance for the process, and the registry that keeps them.
namespace HostTests
{

using OvxUtils::Singleton;
using OvxUtils::SingletonEntry;
using OvxUtils::SingletonLibrary;
using SafeFunction = OvxUtils::basic_safe_function<void()>;

namespace
{

/// A class of which each test has its own.
template <int Test>
struct Shared
{
    int number = 0;
};

/// A made-up module that keeps data in the registry.
template <int Test>
struct Module
{
    static void Create(SingletonEntry& entry, bool create)
    {
        ++createCalls;
        if (!create)
            return;
        entry.data = &data;
        entry.deleter = [](void*) { ++deleted; };
        entry.finalizer = &Finalize;
    }

    static void Finalize() { SingletonLibrary::NotifySingletonModuleUnloaded(&Finalize); }

    static SingletonEntry* Get(bool create, const SafeFunction& withdrawn)
    {
        return SingletonLibrary::GetEntryForType(typeid(Module), &Create, create, withdrawn);
    }

    /// Forgets what was counted, for a test that is run again.
    static void Begin()
    {
        createCalls = 0;
        deleted = 0;
    }

    static inline int data = 0;
    static inline int createCalls = 0;
    static inline int deleted = 0;
};

} // namespace

TEST(SharedInstance, IsOneForAllWhoAsk)
{
    auto& first = Singleton<Shared<1>>::GetInstance();
    first.number = 5;

    EXPECT_EQ(&Singleton<Shared<1>>::GetInstance(), &first);
    EXPECT_EQ(Singleton<Shared<1>>::GetInstance().number, 5);
}

TEST(SharedInstance, IsNotMadeByTheQuestionWhetherThereIsOne)
{
    EXPECT_FALSE(Singleton<Shared<2>>::HasInstance());
    Singleton<Shared<2>>::ReleaseInstance(false);
    EXPECT_FALSE(Singleton<Shared<2>>::HasInstance());

    static_cast<void>(Singleton<Shared<2>>::GetInstance());

    EXPECT_TRUE(Singleton<Shared<2>>::HasInstance());
    Singleton<Shared<2>>::ReleaseInstance(false);
}

TEST(SharedInstance, IsAFreshOneAfterItWasReleased)
{
    for (const bool final : {false, true})
    {
        Singleton<Shared<3>>::GetInstance().number = 5;

        Singleton<Shared<3>>::ReleaseInstance(final);

        EXPECT_FALSE(Singleton<Shared<3>>::HasInstance());
        EXPECT_EQ(Singleton<Shared<3>>::GetInstance().number, 0);
    }
}

TEST(SharedInstance, IsOneAlsoWhenManyThreadsAskAtOnce)
{
    std::array<Shared<4>*, 8> seen{};
    {
        std::array<std::jthread, 8> threads;
        for (std::size_t i = 0; i < threads.size(); ++i)
            threads[i] = std::jthread([&seen, i] { seen[i] = &Singleton<Shared<4>>::GetInstance(); });
    }

    for (const Shared<4>* const each : seen)
        EXPECT_EQ(each, seen.front());
}

TEST(SharedInstance, OfTheHostsOwnServicesIsAlwaysTheSame)
{
    EXPECT_EQ(&Singleton<Styles::StyleManager>::GetInstance(),
              &Singleton<Styles::StyleManager>::GetInstance());
    EXPECT_EQ(&IDataSourceRegistrar::GetInstance(), &IDataSourceRegistrar::GetInstance());
}

TEST(InstanceRegistry, AnswersAQueryThatCreatesNothingWithNull)
{
    Module<1>::Begin();
    const SafeFunction withdrawn([] {});

    EXPECT_EQ(Module<1>::Get(false, withdrawn), nullptr);
    EXPECT_EQ(Module<1>::createCalls, 0);
}

TEST(InstanceRegistry, MakesDataOnceAndGivesItToAll)
{
    Module<2>::Begin();
    const SafeFunction first([] {});
    const SafeFunction second([] {});

    SingletonEntry* const entry = Module<2>::Get(true, first);

    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->data.load(), &Module<2>::data);
    EXPECT_EQ(Module<2>::Get(true, second), entry);
    EXPECT_EQ(Module<2>::Get(false, second), entry);
    EXPECT_EQ(Module<2>::createCalls, 1);
    Module<2>::Finalize();
}

TEST(InstanceRegistry, TakesDataAwayWhenTheModuleThatMadeItGoes)
{
    Module<3>::Begin();
    int withdrawnCount = 0;
    const SafeFunction withdrawn([&] { ++withdrawnCount; });
    Module<3>::Get(true, withdrawn);

    Module<3>::Finalize();

    EXPECT_EQ(withdrawnCount, 1);
    EXPECT_EQ(Module<3>::deleted, 1);
    EXPECT_EQ(Module<3>::Get(false, withdrawn), nullptr);
}

TEST(InstanceRegistry, LeavesAloneWhatOtherModulesMade)
{
    Module<4>::Begin();
    int withdrawnCount = 0;
    const SafeFunction withdrawn([&] { ++withdrawnCount; });
    Module<4>::Get(true, withdrawn);

    Module<5>::Finalize();

    EXPECT_EQ(withdrawnCount, 0);
    EXPECT_EQ(Module<4>::deleted, 0);
    Module<4>::Finalize();
}

TEST(InstanceRegistry, MakesDataAnewAfterItWasTakenAway)
{
    Module<6>::Begin();
    const SafeFunction withdrawn([] {});
    Module<6>::Get(true, withdrawn);
    Module<6>::Finalize();

    const SingletonEntry* const entry = Module<6>::Get(true, withdrawn);

    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->data.load(), &Module<6>::data);
    EXPECT_EQ(Module<6>::createCalls, 2);
    Module<6>::Finalize();
}

TEST(InstanceRegistry, DoesNotCallWhoWasRemoved)
{
    Module<7>::Begin();
    int withdrawnCount = 0;
    const SafeFunction withdrawn([&] { ++withdrawnCount; });
    Module<7>::Get(true, withdrawn);

    SingletonLibrary::RemoveCallback(typeid(Module<7>), withdrawn.GetToken());
    SingletonLibrary::RemoveCallback(typeid(Module<7>), 0);
    Module<7>::Finalize();

    EXPECT_EQ(withdrawnCount, 0);
    EXPECT_EQ(Module<7>::deleted, 1);
}

} // namespace HostTests
