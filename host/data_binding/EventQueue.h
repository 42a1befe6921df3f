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
class STYLEPROPERTIES_HOST_API EventQueue
{
public:
    using Listener = std::function<void(const std::vector<OvxUtils::Any>& arguments)>;

    EventQueue();
    EventQueue(const EventQueue&) = delete;
    EventQueue& operator=(const EventQueue&) = delete;
    ~EventQueue();

    /// Takes a copy of the tokens of `name` and calls each that is still registered when its turn comes.
    void Notify(OvxStringViewT name, const std::vector<OvxUtils::Any>& arguments);

    /// Keeps an event until Deliver. Every event is kept; none are merged.
    void Enqueue(std::shared_ptr<PendingEventBase> event);

    /// Delivers the events that wait now, in order; those queued meanwhile wait for the next call.
    ///
    /// @returns how many were delivered.
    std::size_t Deliver();

    ListenerToken Subscribe(OvxStringViewT name, Listener listener);
    void Unsubscribe(ListenerToken token);

private:
    struct State;

    std::unique_ptr<State> state;
};
