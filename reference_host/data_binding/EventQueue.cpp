#include "host/data_binding/EventQueue.h"

#include "reference_host/data_binding/FirstFailure.h"
#include "reference_host/data_binding/ListenerTable.h"

#include <cstdint>
#include <deque>
#include <utility>

struct EventQueue::State
{
    struct Waiting
    {
        std::uint64_t number; ///< Counts the events of this queue, from 1.
        std::shared_ptr<PendingEventBase> event;
    };

    ReferenceHost::ListenerTable<std::vector<OvxUtils::Any>> listeners;
    std::deque<Waiting> waiting; ///< In order of their numbers.
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
}

std::size_t EventQueue::Deliver(const std::function<void(const OvxStringT& name)>& beforeEach)
{
    // Events leave the queue one by one, so that a listener that runs an idle step of its own, in a dialog
    // for instance, delivers the rest of this round in order and none of them twice.
    const std::uint64_t lastOfRound = state->lastNumber;
    std::size_t count = 0;
    ReferenceHost::FirstFailure failure;
    while (!state->waiting.empty() && state->waiting.front().number <= lastOfRound)
    {
        const std::shared_ptr<PendingEventBase> event = std::move(state->waiting.front().event);
        state->waiting.pop_front();
        ++count;
        failure.Run(
            [&]
            {
                if (beforeEach)
                    beforeEach(event->GetName());
                Notify(event->GetName(), event->GetArguments());
            });
    }
    failure.Rethrow();
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
