#include "host/utils/SingletonLibrary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <set>
#include <stdexcept>
#include <thread>
#include <typeindex>
#include <typeinfo>
#include <vector>

// The registry by itself, with types and modules that the tests make up.
namespace
{

using OvxUtils::SingletonEntry;
using OvxUtils::SingletonLibrary;
using SafeFunction = OvxUtils::basic_safe_function<void()>;

/// A made-up singleton type and the made-up module that makes its data; each test has its own.
template <int Test>
struct Fake
{
    static std::type_index Type() { return typeid(Fake); }

    static void Create(SingletonEntry& entry, bool create)
    {
        ++createCalls;
        if (!create)
            return;
        entry.data = &data;
        entry.deleter = [](void*) { ++deleted; };
        entry.finalizer = &Finalizer;
    }

    static void Finalizer() { SingletonLibrary::NotifySingletonModuleUnloaded(&Finalizer); }

    static SingletonEntry* Get(bool create, const SafeFunction& withdrawn)
    {
        return SingletonLibrary::GetEntryForType(Type(), &Create, create, withdrawn);
    }

    static inline int data = 0;
    static inline std::atomic<int> createCalls = 0;
    static inline std::atomic<int> deleted = 0;
};

TEST(SingletonLibrary, MakesNothingForANonCreatingQuery)
{
    using Type = Fake<1>;
    int withdrawals = 0;
    const SafeFunction withdrawn([&withdrawals] { ++withdrawals; });

    EXPECT_EQ(Type::Get(false, withdrawn), nullptr);

    EXPECT_EQ(Type::createCalls, 0);
    Type::Finalizer();
    EXPECT_EQ(withdrawals, 0);
}

TEST(SingletonLibrary, FillsAnEntryOnceAndGivesItToEveryone)
{
    using Type = Fake<2>;
    const SafeFunction first([] {});
    const SafeFunction second([] {});

    SingletonEntry* const entry = Type::Get(true, first);

    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->data, &Type::data);
    EXPECT_EQ(Type::Get(true, second), entry);
    EXPECT_EQ(Type::Get(false, second), entry);
    EXPECT_EQ(Type::createCalls, 1);
}

TEST(SingletonLibrary, TellsEveryModuleOnceThatAnEntryIsTakenAway)
{
    using Type = Fake<3>;
    std::vector<int> told;
    const SafeFunction first([&told] { told.push_back(1); });
    const SafeFunction second([&told] { told.push_back(2); });
    Type::Get(true, first);
    Type::Get(true, second);
    Type::Get(true, first);

    Type::Finalizer();
    Type::Finalizer();

    EXPECT_THAT(told, testing::ElementsAre(1, 2));
    EXPECT_EQ(Type::deleted, 1);
}

TEST(SingletonLibrary, WithdrawsAnEntryBeforeItsDataEnds)
{
    using Type = Fake<4>;
    int deletedWhenTold = -1;
    const SafeFunction withdrawn([&deletedWhenTold] { deletedWhenTold = Type::deleted; });
    Type::Get(true, withdrawn);

    Type::Finalizer();

    EXPECT_EQ(deletedWhenTold, 0);
    EXPECT_EQ(Type::deleted, 1);
}

TEST(SingletonLibrary, LeavesAnEntryThatWasTakenAwayReadableAndWithoutData)
{
    using Type = Fake<5>;
    const SafeFunction withdrawn([] {});
    SingletonEntry* const entry = Type::Get(true, withdrawn);

    Type::Finalizer();

    EXPECT_EQ(entry->data, nullptr);
    EXPECT_EQ(Type::Get(false, withdrawn), nullptr);
}

TEST(SingletonLibrary, FillsAnEntryAgainAfterItWasTakenAway)
{
    using Type = Fake<6>;
    const SafeFunction withdrawn([] {});
    SingletonEntry* const entry = Type::Get(true, withdrawn);
    Type::Finalizer();

    EXPECT_EQ(Type::Get(true, withdrawn), entry);

    EXPECT_EQ(entry->data, &Type::data);
    EXPECT_EQ(Type::createCalls, 2);
}

TEST(SingletonLibrary, ForgetsACallbackThatWasRemoved)
{
    using Type = Fake<7>;
    std::vector<int> told;
    const SafeFunction first([&told] { told.push_back(1); });
    const SafeFunction second([&told] { told.push_back(2); });
    Type::Get(true, first);
    Type::Get(true, second);

    SingletonLibrary::RemoveCallback(Type::Type(), first.GetToken());
    Type::Finalizer();

    EXPECT_THAT(told, testing::ElementsAre(2));
}

TEST(SingletonLibrary, HasNothingToForgetForAnUnknownTypeOrCallback)
{
    using Type = Fake<8>;
    const SafeFunction withdrawn([] {});

    EXPECT_NO_THROW(SingletonLibrary::RemoveCallback(Type::Type(), withdrawn.GetToken()));

    Type::Get(true, withdrawn);
    EXPECT_NO_THROW(SingletonLibrary::RemoveCallback(Type::Type(), withdrawn.GetToken() + 1));
}

TEST(SingletonLibrary, TakesAwayNothingForAModuleThatMadeNoData)
{
    using Type = Fake<9>;
    const SafeFunction withdrawn([] {});
    SingletonEntry* const entry = Type::Get(true, withdrawn);

    SingletonLibrary::NotifySingletonModuleUnloaded(&Fake<10>::Finalizer);

    EXPECT_EQ(entry->data, &Type::data);
    EXPECT_EQ(Type::deleted, 0);
}

/// Fails to make its data at first.
struct Unlucky
{
    static void Create(SingletonEntry& entry, bool create)
    {
        if (attempts++ == 0)
            throw std::runtime_error("no data");
        Fake<11>::Create(entry, create);
    }

    static inline int attempts = 0;
};

TEST(SingletonLibrary, LetsTheNextOneTryWhenThereCameNoData)
{
    const SafeFunction withdrawn([] {});
    const auto get = [&withdrawn]
    { return SingletonLibrary::GetEntryForType(typeid(Unlucky), &Unlucky::Create, true, withdrawn); };

    EXPECT_THROW(get(), std::runtime_error);
    SingletonEntry* const entry = get();

    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->data, &Fake<11>::data);
}

TEST(SingletonLibrary, FillsAnEntryOnceWhenEightThreadsAskAtOnce)
{
    using Type = Fake<12>;
    constexpr std::size_t kThreads = 8;
    const SafeFunction withdrawn([] {});
    std::vector<SingletonEntry*> seen(kThreads);
    std::atomic<std::size_t> waiting = 0;

    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < kThreads; ++i)
    {
        threads.emplace_back(
            [&, i]
            {
                ++waiting;
                while (waiting < kThreads)
                    std::this_thread::yield();
                seen[i] = Type::Get(true, withdrawn);
            });
    }
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_EQ(Type::createCalls, 1);
    EXPECT_EQ(std::set<SingletonEntry*>(seen.begin(), seen.end()).size(), 1u);
    EXPECT_EQ(seen.front()->data, &Type::data);
}

} // namespace
