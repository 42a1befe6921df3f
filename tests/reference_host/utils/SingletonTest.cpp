#include "host/utils/Singleton.h"

#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <thread>
#include <vector>

// The template within one module; SingletonModulesTest.cpp has several.
namespace
{

using OvxUtils::Singleton;

/// A type of its own for each test: instances live as long as the process.
template <int Test>
struct Numbered
{
    int value = 0;
};

TEST(Singleton, HasNoInstanceAtFirst)
{
    EXPECT_FALSE(Singleton<Numbered<1>>::HasInstance());
    EXPECT_FALSE(Singleton<Numbered<1>>::HasInstance());
}

TEST(Singleton, GivesTheSameInstanceEachTime)
{
    Singleton<Numbered<2>>::GetInstance().value = 5;

    EXPECT_EQ(Singleton<Numbered<2>>::GetInstance().value, 5);
    EXPECT_TRUE(Singleton<Numbered<2>>::HasInstance());
}

TEST(Singleton, ReleasesNothingWhenThereIsNoInstance)
{
    EXPECT_NO_THROW(Singleton<Numbered<3>>::ReleaseInstance(true));

    EXPECT_FALSE(Singleton<Numbered<3>>::HasInstance());
}

TEST(Singleton, IsFreshAfterARelease)
{
    Singleton<Numbered<4>>::GetInstance().value = 5;

    Singleton<Numbered<4>>::ReleaseInstance(false);

    EXPECT_FALSE(Singleton<Numbered<4>>::HasInstance());
    EXPECT_EQ(Singleton<Numbered<4>>::GetInstance().value, 0);
}

TEST(Singleton, IsMadeAgainEvenAfterItWasReleasedForGood)
{
    Singleton<Numbered<5>>::GetInstance();

    Singleton<Numbered<5>>::ReleaseInstance(true);

    EXPECT_EQ(Singleton<Numbered<5>>::GetInstance().value, 0);
}

TEST(Singleton, IsFreshAfterItsModuleAnnouncedItsEnd)
{
    Singleton<Numbered<6>>::GetInstance().value = 5;

    Singleton<Numbered<6>>::StaticFinalizer();

    EXPECT_FALSE(Singleton<Numbered<6>>::HasInstance());
    EXPECT_EQ(Singleton<Numbered<6>>::GetInstance().value, 0);
}

TEST(Singleton, IsUntouchedByTheEndOfAnother)
{
    Singleton<Numbered<7>>::GetInstance().value = 5;
    Singleton<Numbered<8>>::GetInstance();

    Singleton<Numbered<8>>::StaticFinalizer();

    EXPECT_EQ(Singleton<Numbered<7>>::GetInstance().value, 5);
}

/// Needs another singleton while it is made and while it goes.
struct Dependent
{
    Dependent() { Singleton<Numbered<9>>::GetInstance().value += 1; }

    Dependent(const Dependent&) = delete;
    Dependent& operator=(const Dependent&) = delete;

    ~Dependent() { Singleton<Numbered<9>>::GetInstance().value += 10; }
};

TEST(Singleton, MayNeedAnotherOneWhileItIsMadeAndEnded)
{
    Singleton<Dependent>::GetInstance();
    Singleton<Dependent>::StaticFinalizer();

    EXPECT_EQ(Singleton<Numbered<9>>::GetInstance().value, 11);
}

/// Asks for itself while it is made.
struct Curious
{
    Curious() : sawItself(Singleton<Curious>::HasInstance()) {}

    bool sawItself;
};

TEST(Singleton, IsNotThereYetWhileItIsMade)
{
    EXPECT_FALSE(Singleton<Curious>::GetInstance().sawItself);
}

/// Fails to be made for the first time.
struct Reluctant
{
    Reluctant()
    {
        if (attempts++ == 0)
            throw std::runtime_error("not yet");
    }

    static inline int attempts = 0;
};

TEST(Singleton, IsTriedAgainWhenMakingItFailed)
{
    EXPECT_THROW(Singleton<Reluctant>::GetInstance(), std::runtime_error);
    EXPECT_FALSE(Singleton<Reluctant>::HasInstance());

    EXPECT_NO_THROW(Singleton<Reluctant>::GetInstance());

    EXPECT_TRUE(Singleton<Reluctant>::HasInstance());
}

struct Counted
{
    Counted() { ++made; }

    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

    ~Counted() { ++ended; }

    static inline std::atomic<int> made = 0;
    static inline std::atomic<int> ended = 0;
};

TEST(Singleton, EndsAsManyAsItMadeWhileThreadsAskAndRelease)
{
    constexpr int kThreads = 8;
    constexpr int kRounds = 200;
    std::atomic<int> waiting = 0;

    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i)
    {
        threads.emplace_back(
            [&waiting, releases = i % 4 == 0]
            {
                ++waiting;
                while (waiting < kThreads)
                    std::this_thread::yield();
                for (int round = 0; round < kRounds; ++round)
                {
                    if (releases)
                        Singleton<Counted>::ReleaseInstance(false);
                    else
                        EXPECT_NE(&Singleton<Counted>::GetInstance(), nullptr);
                }
            });
    }
    for (std::thread& thread : threads)
        thread.join();
    Singleton<Counted>::ReleaseInstance(false);

    EXPECT_EQ(Counted::made, Counted::ended);
    EXPECT_GE(Counted::made, 1);
}

} // namespace
