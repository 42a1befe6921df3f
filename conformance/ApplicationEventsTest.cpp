#include "conformance/HostTest.h"
#include "conformance/PrintedValues.h"
#include "conformance/Subjects.h"

#include "host/data_binding/IAppEventBroadcaster.h"
#include "host/data_binding/PendingEvent.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

HOST_TESTS_SUBJECT(ApplicationEventsTest);

// Events for the whole application, at once and on idle.
namespace HostTests
{

using OvxUtils::Any;
using Styles::PropertyKey;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

/// Event names of these tests alone, so that what a host raises itself is not counted.
constexpr const wchar_t* kAtOnce = L"HostTests.AtOnce";
constexpr const wchar_t* kOnIdle = L"HostTests.OnIdle";

/// The application's broadcaster, with listeners that are gone after the test.
class ApplicationEvent : public HostTest
{
protected:
    ~ApplicationEvent() override
    {
        host.reset();
        for (const ListenerToken token : tokens)
            events.Unsubscribe(token);
    }

    ListenerToken Keep(ListenerToken token)
    {
        tokens.push_back(token);
        return token;
    }

    /// Adds a listener that takes down "WHO", then does something more.
    ListenerToken Listen(const wchar_t* name, const std::string& who, std::function<void()> andThen = {})
    {
        return Keep(events.SubscribeGeneric(name,
                                            [this, who, andThen](const std::vector<Any>&)
                                            {
                                                heard.push_back(who);
                                                if (andThen)
                                                    andThen();
                                            }));
    }

    /// Queues an event that carries a key and a text.
    void Queue(const wchar_t* key = L"fill", const wchar_t* text = L"")
    {
        events.NotifyListenersOnIdleImpl(
            kOnIdle, true, std::make_shared<PendingEvent<PropertyKey, OvxStringT>>(kOnIdle, Key(key), text));
    }

    IAppEventBroadcaster& events = OvxUtils::Singleton<IAppEventBroadcaster>::GetInstance();
    std::vector<std::string> heard;

private:
    std::vector<ListenerToken> tokens;
};

} // namespace

TEST_F(ApplicationEvent, HasOneBroadcasterForAll)
{
    EXPECT_EQ(&OvxUtils::Singleton<IAppEventBroadcaster>::GetInstance(), &events);
}

TEST_F(ApplicationEvent, RaisedAtOnceIsHeardAtOnceInTheOrderOfSubscription)
{
    Listen(kAtOnce, "first");
    Listen(kOnIdle, "other");
    Listen(kAtOnce, "second");

    events.NotifyListeners(kAtOnce);

    EXPECT_THAT(heard, ElementsAre("first", "second"));
}

TEST_F(ApplicationEvent, RaisedOnIdleWaitsForTheIdleStep)
{
    Listen(kOnIdle, "listener");

    Queue();
    EXPECT_THAT(heard, IsEmpty());

    host->RunIdle();
    EXPECT_THAT(heard, ElementsAre("listener"));

    host->RunIdle();
    EXPECT_THAT(heard, ElementsAre("listener"));
}

TEST_F(ApplicationEvent, RaisedOnIdleIsDeliveredByTheBroadcasterItself)
{
    events.DeliverPending();
    Listen(kOnIdle, "listener");
    Queue();

    EXPECT_EQ(events.DeliverPending(), 1U);
    EXPECT_THAT(heard, ElementsAre("listener"));
    EXPECT_EQ(events.DeliverPending(), 0U);
}

TEST_F(ApplicationEvent, ThatWaitsIsNeverMergedWithAnother)
{
    std::vector<std::wstring> keys;
    Keep(events.Subscribe<PropertyKey, OvxStringT>(kOnIdle, [&](const PropertyKey& key, const OvxStringT&)
                                                   { keys.push_back(key.GetString().Wide()); }));

    for (const wchar_t* const key : {L"fill", L"outline", L"fill"})
        Queue(key);
    host->RunIdle();

    EXPECT_THAT(keys, ElementsAre(L"fill", L"outline", L"fill"));
}

TEST_F(ApplicationEvent, CarriesItsArgumentsInOrder)
{
    std::vector<Any> carried;
    Keep(events.SubscribeGeneric(kOnIdle, [&](const std::vector<Any>& arguments) { carried = arguments; }));

    Queue(L"outline", L"text");
    host->RunIdle();

    EXPECT_THAT(carried, ElementsAre(Any(Key(L"outline")), Any(OvxStringT(L"text"))));
}

TEST_F(ApplicationEvent, RaisedAtOnceCarriesNothing)
{
    std::vector<Any> carried(1);
    Keep(events.SubscribeGeneric(kAtOnce, [&](const std::vector<Any>& arguments) { carried = arguments; }));

    events.NotifyListeners(kAtOnce);

    EXPECT_THAT(carried, IsEmpty());
}

TEST_F(ApplicationEvent, QueuedByAListenerWaitsForTheNextIdleStep)
{
    ListenerToken token;
    token = Listen(kOnIdle, "listener",
                   [&]
                   {
                       if (heard.size() == 1)
                           Queue();
                   });

    Queue();
    host->RunIdle();
    EXPECT_EQ(heard.size(), 1U);

    host->RunIdle();
    EXPECT_EQ(heard.size(), 2U);
}

TEST_F(ApplicationEvent, IsNotHeardAfterUnsubscribing)
{
    const ListenerToken removed = Listen(kAtOnce, "removed");
    Listen(kAtOnce, "kept");

    events.Unsubscribe(removed);
    events.Unsubscribe(ListenerToken());
    events.NotifyListeners(kAtOnce);

    EXPECT_THAT(heard, ElementsAre("kept"));
}

TEST_F(ApplicationEvent, IsNotHeardByAListenerThatAnotherUnsubscribed)
{
    ListenerToken later;
    Listen(kAtOnce, "first", [&] { events.Unsubscribe(later); });
    later = Listen(kAtOnce, "later");

    events.NotifyListeners(kAtOnce);

    EXPECT_THAT(heard, ElementsAre("first"));
}

TEST_F(ApplicationEvent, ReachesAllListenersAlthoughOneThrows)
{
    Listen(kAtOnce, "first", [] { throw std::runtime_error("first"); });
    Listen(kAtOnce, "second");

    EXPECT_THROW(events.NotifyListeners(kAtOnce), std::runtime_error);

    EXPECT_THAT(heard, ElementsAre("first", "second"));
}

TEST_F(ApplicationEvent, IsDeliveredOnIdleAlthoughTheOneBeforeItFailed)
{
    Listen(kOnIdle, "listener",
           [&]
           {
               if (heard.size() == 1)
                   throw std::runtime_error("first");
           });
    Queue();
    Queue();

    EXPECT_THROW(events.DeliverPending(), std::runtime_error);

    EXPECT_EQ(heard.size(), 2U);
}

TEST_F(ApplicationEvent, ThatIsMissingIsIgnored)
{
    events.DeliverPending();

    events.NotifyListenersOnIdleImpl(kOnIdle, true, nullptr);

    EXPECT_EQ(events.DeliverPending(), 0U);
}

} // namespace HostTests
