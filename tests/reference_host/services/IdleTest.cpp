#include "reference_host/services/Idle.h"

#include "host/data_binding/IAppEventBroadcaster.h"
#include "host/data_binding/PendingEvent.h"
#include "tests/reference_host/services/RecordingDataSource.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

using ReferenceHost::RunIdle;
using ::testing::ElementsAre;

namespace
{

/// Listens to an event of the application for the length of a test.
class IdleStep : public ::testing::Test
{
protected:
    ~IdleStep() override { events.Unsubscribe(token); }

    void Listen(std::function<void()> listener)
    {
        token = events.Subscribe<>(L"Changed", std::move(listener));
    }

    void Queue()
    {
        events.NotifyListenersOnIdleImpl(L"Changed", true, std::make_shared<PendingEvent<>>(L"Changed"));
    }

    IAppEventBroadcaster& events = OvxUtils::Singleton<IAppEventBroadcaster>::GetInstance();
    RecordingFactory factory;
    ListenerToken token;
};

} // namespace

TEST_F(IdleStep, DeliversTheEventsThatWait)
{
    int heard = 0;
    Listen([&] { ++heard; });
    Queue();
    Queue();

    const std::size_t count = RunIdle();

    EXPECT_EQ(count, 2U);
    EXPECT_EQ(heard, 2);
}

TEST_F(IdleStep, DoesNothingWhenNothingWaits)
{
    EXPECT_EQ(RunIdle(), 0U);
}

TEST_F(IdleStep, DestroysTheDataSourcesThatItsEventsEnded)
{
    IDataSource* ended = factory.Create(nullptr);
    std::vector<std::string> whileDelivered;
    Listen(
        [&]
        {
            ended->Destroy();
            whileDelivered = RecordingDataSource::Record();
        });
    Queue();

    RunIdle();

    EXPECT_THAT(whileDelivered, ElementsAre("created"));
    EXPECT_THAT(RecordingDataSource::Record(), ElementsAre("created", "destroyed without context"));
}

TEST_F(IdleStep, WithinANotificationDeliversAndDestroysNothing)
{
    IDataSource* ended = factory.Create(nullptr);
    std::vector<std::string> afterInnerStep;
    Listen(
        [&]
        {
            ended->Destroy();
            RunIdle();
            afterInnerStep = RecordingDataSource::Record();
        });

    events.NotifyListeners(L"Changed");
    RunIdle();

    EXPECT_THAT(afterInnerStep, ElementsAre("created"));
    EXPECT_EQ(RecordingDataSource::Record().size(), 2U);
}

TEST_F(IdleStep, DestroysWhatWaitsAlthoughAListenerThrows)
{
    IDataSource* ended = factory.Create(nullptr);
    Listen(
        [&]
        {
            ended->Destroy();
            throw std::runtime_error("no");
        });
    Queue();

    EXPECT_THROW(RunIdle(), std::runtime_error);
    EXPECT_EQ(RecordingDataSource::Record().size(), 2U);
}
