#include "reference_host/data_binding/UiThread.h"

#include "host/data_binding/IAppEventBroadcaster.h"
#include "host/data_binding/IBroadcaster.h"
#include "tests/reference_host/data_binding/BoundNames.h"

#include <gtest/gtest.h>

#include <thread>

using ReferenceHost::UiThread;

namespace
{

/// Has one bound name, and listeners.
class Named : public IReflectable, public IBroadcaster
{
public:
    Named()
    {
        BoundNames::AddReadOnly<int>(*this, L"Width", [] { return 1; });
    }
};

/// Leaves the thread of the tests as the user interface's.
class InterfaceThread : public ::testing::Test
{
protected:
    InterfaceThread() { UiThread::Reset(); }

    ~InterfaceThread() override { UiThread::Reset(); }

    static bool IsCurrentOnAnotherThread()
    {
        bool isCurrent = false;
        std::thread([&] { isCurrent = UiThread::IsCurrent(); }).join();
        return isCurrent;
    }
};

} // namespace

TEST_F(InterfaceThread, IsTheFirstOneThatAsks)
{
    const bool isCurrent = UiThread::IsCurrent();

    EXPECT_TRUE(isCurrent);
    EXPECT_FALSE(IsCurrentOnAnotherThread());
}

TEST_F(InterfaceThread, StaysTheSameWhenAskedAgain)
{
    (void)UiThread::IsCurrent();
    (void)IsCurrentOnAnotherThread();

    const bool isCurrent = UiThread::IsCurrent();

    EXPECT_TRUE(isCurrent);
}

TEST_F(InterfaceThread, MayBeAnotherOneAfterReset)
{
    (void)UiThread::IsCurrent();

    UiThread::Reset();

    EXPECT_TRUE(IsCurrentOnAnotherThread());
}

#if !defined(NDEBUG) && defined(GTEST_HAS_DEATH_TEST)

TEST_F(InterfaceThread, IsAssertedForEventsInDebugBuilds)
{
    (void)UiThread::IsCurrent();

    EXPECT_DEATH(std::thread([] { UiThreadPolicy::Check(); }).join(), "user interface's thread");
}

TEST_F(InterfaceThread, IsAssertedForBoundNamesAndListenersInDebugBuilds)
{
    (void)UiThread::IsCurrent();
    Named named;

    EXPECT_DEATH(std::thread([&] { (void)named.ReadAny(L"Width"); }).join(), "user interface's thread");
    EXPECT_DEATH(std::thread([&] { named.UpdateListeners(L"Width"); }).join(), "user interface's thread");
}

#endif
