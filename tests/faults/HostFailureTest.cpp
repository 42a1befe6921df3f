// What the reference host does for the library fails for want of memory, allocation by allocation.

#include "host/data_binding/DataSource.h"
#include "host/data_binding/EventQueue.h"
#include "host/style_model/PropertyKey.h"
#include "host/utils/Singleton.h"
#include "host/utils/WDictionary.h"
#include "reference_host/services/AtomicFile.h"
#include "tests/faults/FailEach.h"
#include "tests/faults/FailingAllocations.h"
#include "tests/reference_host/document/ScratchFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <new>
#include <string>

namespace
{

using FailingAllocations::Countdown;
using FailingAllocations::CountLive;
using FailingAllocations::Failing;

class Broadcaster : public IBroadcaster
{
};

TEST(ASubscriptionThatFailed, IsNotCalled)
{
    Broadcaster broadcaster;
    int heard = 0;

    FailEach([&] { broadcaster.AddListener(L"A long name", [&](const OvxStringT&) { ++heard; }); },
             [&]
             {
                 broadcaster.UpdateListeners(L"A long name");
                 EXPECT_EQ(heard, 0);
             });
}

TEST(ASubscriptionToAnEventThatFailed, IsNotCalled)
{
    EventQueue queue;
    int heard = 0;

    FailEach([&] { queue.Subscribe(L"A long name", [&](const std::vector<OvxUtils::Any>&) { ++heard; }); },
             [&]
             {
                 queue.Notify(L"A long name", {});
                 EXPECT_EQ(heard, 0);
             });
}

class Names : public IReflectable
{
};

TEST(ANameThatFailed, IsNotListed)
{
    Names names;
    const auto act = [&]
    {
        names._AddDelegate(L"A long name",
                           OvxUtils::RepeatingCallbackMemento(
                               OvxUtils::RepeatingCallback<void()>(std::function<void()>([] {}))),
                           runtime_type<void()>());
    };

    FailEach(act, [&] { EXPECT_TRUE(names.GetNames().empty()); });

    EXPECT_EQ(names.GetNames().size(), 1U);
}

TEST(ATextThatFailed, LeavesNothingInThePool)
{
    // Keys never go: the text must be one that no other test has made.
    const OvxStringT text = L"a text that is made into a key here alone";
    static_cast<void>(Styles::StringPool::Intern(L"another, for which the pool itself is made"));
    std::size_t left = 0;
    const auto intern = [&]
    {
        const std::size_t before = CountLive();
        try
        {
            static_cast<void>(Styles::StringPool::Intern(text));
        }
        catch (const std::bad_alloc&)
        {
            left = CountLive() - before;
            throw;
        }
    };

    FailEach(intern, [&] { EXPECT_EQ(left, 0U); });
}

TEST(AnObjectThatFailed, LeavesTheOneInItsPlace)
{
    OvxUtl::WDictionary<int, OvxStringT> objects;
    objects.Set(L"A long name", std::make_unique<int>(1));

    FailEach([&] { objects.Set(L"A long name", std::make_unique<int>(2)); },
             [&]
             {
                 ASSERT_NE(objects.Find(L"A long name"), nullptr);
                 EXPECT_EQ(*objects.Find(L"A long name"), 1);
             });

    EXPECT_EQ(*objects.Find(L"A long name"), 2);
}

class Mortal : public DataSource<Mortal, false>
{
};

TEST(ADataSource, EndsWithoutMemory)
{
    Mortal* const mortal = std::make_unique<Mortal>().release();
    const Countdown countdown(0, Failing::AllFrom);

    mortal->Destroy();

    EXPECT_FALSE(Countdown::HasFailed());
}

struct Counted
{
    Counted() { ++living; }

    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

    ~Counted() { --living; }

    static inline int living = 0;
};

TEST(ASingleton, IsMadeOrNotWhenMemoryIsShort)
{
    using Shared = OvxUtils::Singleton<Counted>;

    FailEach([] { static_cast<void>(Shared::GetInstance()); },
             [] { EXPECT_EQ(Counted::living, Shared::HasInstance() ? 1 : 0); });

    EXPECT_EQ(Counted::living, 1);
    Shared::ReleaseInstance(false);
    EXPECT_EQ(Counted::living, 0);
}

TEST(ASingleton, IsWithdrawnWithoutMemory)
{
    using Shared = OvxUtils::Singleton<Counted>;
    static_cast<void>(Shared::GetInstance());
    const Countdown countdown(0, Failing::AllFrom);

    Shared::StaticFinalizer();

    EXPECT_FALSE(Countdown::HasFailed());
    EXPECT_EQ(Counted::living, 0);
}

class WrittenFile : public testing::Test
{
protected:
    [[nodiscard]] std::string Text() const
    {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }

    [[nodiscard]] std::ptrdiff_t CountFiles() const
    {
        using Iterator = std::filesystem::directory_iterator;
        return std::distance(Iterator(folder.GetPath()), Iterator());
    }

    ScratchFolder folder;
    std::filesystem::path file = folder.GetPath() / "a file with a long name";
};

TEST_F(WrittenFile, IsTheOldOneAloneWhenMemoryIsShort)
{
    ReferenceHost::WriteFileAtomically(file, "old", ReferenceHost::Backup::None);

    FailEach([&] { ReferenceHost::WriteFileAtomically(file, "new", ReferenceHost::Backup::None); },
             [&]
             {
                 EXPECT_EQ(Text(), "old");
                 EXPECT_EQ(CountFiles(), 1);
             });

    EXPECT_EQ(Text(), "new");
}

} // namespace
