#pragma once

#include "host/Export.h"
#include "host/data_binding/ListenerToken.h"
#include "host/data_binding/PendingEventBase.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

/// The listeners and the waiting events of an EventBroadcaster, without its policies; the host's own insides.
///
/// Listeners may subscribe, unsubscribe and queue from inside a call. They must not destroy the queue.
class STYLEPROPERTIES_HOST_API EventQueue
{
public:
    /// What is called with the arguments of an event.
    using Listener = std::function<void(const std::vector<OvxUtils::Any>& arguments)>;

    EventQueue();
    EventQueue(const EventQueue&) = delete;
    EventQueue& operator=(const EventQueue&) = delete;
    ~EventQueue();

    /// Takes a copy of the tokens of `name` and calls each that is still registered when its turn comes.
    ///
    /// All of them are called, also when one throws.
    ///
    /// @throws whatever the first failing listener threw, after the last one was called.
    void Notify(OvxStringViewT name, const std::vector<OvxUtils::Any>& arguments);

    /// Keeps an event until Deliver. Every event is kept; none are merged. Null is ignored.
    void Enqueue(std::shared_ptr<PendingEventBase> event);

    /// Delivers the events that wait now, in order; those queued meanwhile wait for the next call.
    ///
    /// `beforeEach`, when it is given, is told the name of each event before its listeners are called. A
    /// listener may call Deliver again: it then delivers the rest of this round and whatever was queued
    /// meanwhile. All events of the round are delivered, also when a listener throws.
    ///
    /// @returns how many were delivered, by this call itself.
    /// @throws whatever the first failing listener threw, after the last event.
    std::size_t Deliver(const std::function<void(const OvxStringT& name)>& beforeEach = {});

    /// Calls `listener` for each event `name` from now on, until Unsubscribe() with the token.
    ListenerToken Subscribe(OvxStringViewT name, Listener listener);
    /// Ends a subscription; does nothing when it has ended.
    void Unsubscribe(ListenerToken token);

private:
    struct State;

    std::unique_ptr<State> state;
};
