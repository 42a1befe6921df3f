// Who is told of what, and when: the listeners of one object's properties, and the events of the whole
// application, at once or in the idle step.

#include "host/data_binding/EventQueue.h"
#include "host/data_binding/IAppEventBroadcaster.h"
#include "host/data_binding/IBroadcaster.h"
#include "host/utils/StringSplit.h"
#include "tiny_host/Lasting.h"
#include "tiny_host/ListenerRow.h"

#include <cassert>
#include <deque>
#include <thread>

using TinyHost::Calls;
using TinyHost::Keeps;
using TinyHost::ListenerRow;
using TinyHost::Promise;

struct IBroadcaster::Listeners
{
    ListenerRow<OvxStringT> row;
};

IBroadcaster::IBroadcaster() : listeners(std::make_shared<Listeners>())
{
}

IBroadcaster::~IBroadcaster()
{
    listeners->row.Clear();
}

void IBroadcaster::UpdateListeners(OvxStringViewT names)
{
    // A listener may destroy this object: the row outlives it here, and is empty then.
    const std::shared_ptr<Listeners> kept = listeners;
    const wchar_t separator = Keeps(Promise::JoinedNamesAreSplit) ? L',' : L'\0';
    Calls calls;
    for (const OvxStringT& name : OvxUtils::String::Split(names, separator, false, true))
        calls.Make([&] { kept->row.Notify(name, name); });
    calls.Finish();
}

ListenerToken IBroadcaster::AddListener(OvxStringViewT name,
                                        std::function<void(const OvxStringT& name)> listener)
{
    return listeners->row.Add(name, std::move(listener));
}

void IBroadcaster::RemoveListener(ListenerToken token)
{
    listeners->row.Remove(token);
}

struct EventQueue::State
{
    struct Waiting
    {
        std::uint64_t number; ///< Counted from 1.
        std::shared_ptr<PendingEventBase> event;
    };

    ListenerRow<std::vector<OvxUtils::Any>> listeners;
    std::deque<Waiting> waiting;
    std::uint64_t lastNumber = 0;
};

EventQueue::EventQueue() : state(std::make_unique<State>())
{
}

EventQueue::~EventQueue() = default;

void EventQueue::Notify(OvxStringViewT name, const std::vector<OvxUtils::Any>& arguments)
{
    state->listeners.Notify(name, arguments);
}

void EventQueue::Enqueue(std::shared_ptr<PendingEventBase> event)
{
    if (event != nullptr)
        state->waiting.push_back({++state->lastNumber, std::move(event)});
    if (!Keeps(Promise::IdleEventsWait))
        Deliver();
}

std::size_t EventQueue::Deliver(const std::function<void(const OvxStringT& name)>& beforeEach)
{
    // One by one: a listener may have an idle step of its own, in a dialog for instance, which goes on with
    // what is left of this round.
    const std::uint64_t lastOfRound = state->lastNumber;
    std::size_t count = 0;
    Calls calls;
    while (!state->waiting.empty() && state->waiting.front().number <= lastOfRound)
    {
        const std::shared_ptr<PendingEventBase> event = state->waiting.front().event;
        state->waiting.pop_front();
        ++count;
        calls.Make(
            [&]
            {
                if (beforeEach)
                    beforeEach(event->GetName());
                Notify(event->GetName(), event->GetArguments());
            });
    }
    calls.Finish();
    return count;
}

ListenerToken EventQueue::Subscribe(OvxStringViewT name, Listener listener)
{
    return state->listeners.Add(name, std::move(listener));
}

void EventQueue::Unsubscribe(ListenerToken token)
{
    state->listeners.Remove(token);
}

// This host has nothing to bring up to date before an event.
void AppUpdatePolicy::PreNotify(const OvxStringT& /*name*/)
{
}

// The first thread that has to do with events is the user interface's.
void UiThreadPolicy::Check()
{
    [[maybe_unused]] static const std::thread::id own = std::this_thread::get_id();
    assert(std::this_thread::get_id() == own && "events belong to the user interface's thread");
}

template <>
IAppEventBroadcaster& OvxUtils::Singleton<IAppEventBroadcaster>::GetInstance()
{
    return TinyHost::Lasting<IAppEventBroadcaster>();
}
