#include "host/data_binding/EventBroadcaster.h"

#include "host/data_binding/IAppEventBroadcaster.h"
#include "host/data_binding/PendingEvent.h"
#include "host/style_model/PropertyKey.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using OvxUtils::Any;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace
{

/// What the policies and listeners of the running test did.
std::vector<std::wstring>& Log()
{
    static std::vector<std::wstring> log;
    return log;
}

struct RecordingUpdatePolicy
{
    static void PreNotify(const OvxStringT& name) { Log().push_back(L"pre:" + name.Wide()); }
};

struct AnyThreadPolicy
{
    static void Check() {}
};

class Events : public ::testing::Test
{
protected:
    Events() { Log().clear(); }

    void Queue(const OvxStringT& name, int number)
    {
        broadcaster.NotifyListenersOnIdleImpl(name, true, std::make_shared<PendingEvent<int>>(name, number));
    }

    void RecordNumbersOf(const OvxStringT& name)
    {
        broadcaster.Subscribe<int>(name, [](int number) { Log().push_back(std::to_wstring(number)); });
    }

    EventBroadcaster<RecordingUpdatePolicy, AnyThreadPolicy> broadcaster;
};

} // namespace

TEST_F(Events, RaisedAtOnceReachTheirListenersAfterThePolicyWasTold)
{
    broadcaster.Subscribe<>(L"Changed", [] { Log().push_back(L"first"); });
    broadcaster.Subscribe<>(L"Changed", [] { Log().push_back(L"second"); });
    broadcaster.Subscribe<>(L"Other", [] { Log().push_back(L"other"); });

    broadcaster.NotifyListeners(L"Changed");

    EXPECT_THAT(Log(), ElementsAre(L"pre:Changed", L"first", L"second"));
}

TEST_F(Events, RaisedOnIdleWaitForTheirDelivery)
{
    RecordNumbersOf(L"Changed");

    Queue(L"Changed", 1);

    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(Events, ThatWaitAreAllDeliveredInOrderAndNoneMerged)
{
    RecordNumbersOf(L"Changed");
    Queue(L"Changed", 1);
    Queue(L"Changed", 1);
    Queue(L"Changed", 2);

    const std::size_t count = broadcaster.DeliverPending();

    EXPECT_EQ(count, 3U);
    EXPECT_THAT(Log(), ElementsAre(L"pre:Changed", L"1", L"pre:Changed", L"1", L"pre:Changed", L"2"));
}

TEST_F(Events, AreDeliveredOnce)
{
    RecordNumbersOf(L"Changed");
    Queue(L"Changed", 1);
    broadcaster.DeliverPending();

    const std::size_t count = broadcaster.DeliverPending();

    EXPECT_EQ(count, 0U);
    EXPECT_THAT(Log(), ElementsAre(L"pre:Changed", L"1"));
}

TEST_F(Events, QueuedByAListenerWaitForTheNextDelivery)
{
    broadcaster.Subscribe<int>(L"Changed", [&](int number) { Queue(L"Changed", number + 1); });
    Queue(L"Changed", 1);

    EXPECT_EQ(broadcaster.DeliverPending(), 1U);
    EXPECT_EQ(broadcaster.DeliverPending(), 1U);
}

TEST_F(Events, OfOneRoundAreFinishedInOrderByAnIdleStepWithinIt)
{
    broadcaster.Subscribe<int>(L"Changed",
                               [&](int number)
                               {
                                   Log().push_back(std::to_wstring(number));
                                   broadcaster.DeliverPending();
                               });
    Queue(L"Changed", 1);
    Queue(L"Changed", 2);
    Queue(L"Changed", 3);

    broadcaster.DeliverPending();

    EXPECT_THAT(Log(), ElementsAre(L"pre:Changed", L"1", L"pre:Changed", L"2", L"pre:Changed", L"3"));
}

TEST_F(Events, CarryTheirArgumentsInOrder)
{
    Styles::PropertyKey key;
    OvxStringT text;
    broadcaster.Subscribe<Styles::PropertyKey, OvxStringT>(
        L"Changed",
        [&](Styles::PropertyKey carriedKey, OvxStringT carriedText)
        {
            key = carriedKey;
            text = carriedText;
        });
    const Styles::PropertyKey fill{Styles::PooledString<Styles::StringPool>(L"fill")};
    broadcaster.NotifyListenersOnIdleImpl(
        L"Changed", true,
        std::make_shared<PendingEvent<Styles::PropertyKey, OvxStringT>>(L"Changed", fill, L"note"));

    broadcaster.DeliverPending();

    EXPECT_EQ(key, fill);
    EXPECT_EQ(text, OvxStringT(L"note"));
}

TEST_F(Events, ReachGenericListenersAsAListOfValues)
{
    std::vector<Any> carried;
    broadcaster.SubscribeGeneric(L"Changed", [&](const std::vector<Any>& arguments) { carried = arguments; });
    Queue(L"Changed", 7);

    broadcaster.DeliverPending();

    EXPECT_EQ(carried, std::vector<Any>{Any(7)});
}

TEST_F(Events, RaisedAtOnceReachGenericListenersWithAnEmptyList)
{
    std::vector<Any> carried{Any(1)};
    broadcaster.SubscribeGeneric(L"Changed", [&](const std::vector<Any>& arguments) { carried = arguments; });

    broadcaster.NotifyListeners(L"Changed");

    EXPECT_TRUE(carried.empty());
}

TEST_F(Events, PassListenersThatExpectOtherArgumentsByWithAFailure)
{
    broadcaster.Subscribe<OvxStringT>(L"Changed", [](const OvxStringT&) { Log().push_back(L"text"); });
    RecordNumbersOf(L"Changed");
    Queue(L"Changed", 5);

    EXPECT_THROW(broadcaster.DeliverPending(), std::bad_cast);
    EXPECT_THAT(Log(), ElementsAre(L"pre:Changed", L"5"));
}

TEST_F(Events, BehindOneWhoseListenerThrowsAreStillDelivered)
{
    broadcaster.Subscribe<int>(L"Changed",
                               [](int number)
                               {
                                   if (number == 1)
                                       throw std::runtime_error("no");
                                   Log().push_back(std::to_wstring(number));
                               });
    Queue(L"Changed", 1);
    Queue(L"Changed", 2);

    EXPECT_THROW(broadcaster.DeliverPending(), std::runtime_error);
    EXPECT_THAT(Log(), ElementsAre(L"pre:Changed", L"pre:Changed", L"2"));
    EXPECT_EQ(broadcaster.DeliverPending(), 0U);
}

TEST_F(Events, AreNotHeardByAListenerThatAnotherOneUnsubscribed)
{
    ListenerToken later;
    broadcaster.Subscribe<>(L"Changed", [&] { broadcaster.Unsubscribe(later); });
    later = broadcaster.Subscribe<>(L"Changed", [] { Log().push_back(L"later"); });

    broadcaster.NotifyListeners(L"Changed");

    EXPECT_THAT(Log(), ElementsAre(L"pre:Changed"));
}

TEST_F(Events, ThatAreMissingAreIgnored)
{
    broadcaster.NotifyListenersOnIdleImpl(L"Changed", true, nullptr);

    const std::size_t count = broadcaster.DeliverPending();

    EXPECT_EQ(count, 0U);
}

TEST(ApplicationEvents, HaveOneBroadcaster)
{
    auto& first = OvxUtils::Singleton<IAppEventBroadcaster>::GetInstance();
    auto& second = OvxUtils::Singleton<IAppEventBroadcaster>::GetInstance();

    EXPECT_EQ(&first, &second);
}
