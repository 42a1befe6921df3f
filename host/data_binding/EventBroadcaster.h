#pragma once

#include "host/data_binding/EventQueue.h"
#include "host/data_binding/ListenerToken.h"
#include "host/data_binding/PendingEventBase.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

/// Raises events for the whole application, at once or when it is idle.
///
/// `UpdatePolicy` is told of each delivery beforehand by `PreNotify(name)`. `ThreadingPolicy` is asked by
/// `Check()` whether the calling thread may be here.
template <class UpdatePolicy, class ThreadingPolicy>
class EventBroadcaster
{
public:
    /// Calls the listeners of `name` now, without arguments.
    ///
    /// @throws whatever the first failing listener threw, after the last one was called.
    void NotifyListeners(const OvxStringT& name)
    {
        ThreadingPolicy::Check();
        UpdatePolicy::PreNotify(name);
        queue.Notify(name, {});
    }

    /// Keeps an event until DeliverPending. `name` is that of the event; `queued` is always true.
    void NotifyListenersOnIdleImpl(const OvxStringT& name, bool queued,
                                   std::shared_ptr<PendingEventBase> event)
    {
        ThreadingPolicy::Check();
        static_cast<void>(name);
        static_cast<void>(queued);
        queue.Enqueue(std::move(event));
    }

    /// Calls `listener` for each event of that name with its arguments, whose types the caller names.
    ///
    /// An event that carries other types fails with std::bad_cast, one that carries fewer with
    /// std::out_of_range; further ones are left out.
    template <class... Arguments>
    ListenerToken Subscribe(const OvxStringT& name,
                            std::type_identity_t<std::function<void(Arguments...)>> listener)
    {
        return queue.Subscribe(name, [call = std::move(listener)](const std::vector<OvxUtils::Any>& arguments)
                               { Apply(call, arguments, std::index_sequence_for<Arguments...>()); });
    }

    /// Calls `listener` for each event of that name with its arguments as a list.
    ListenerToken SubscribeGeneric(const OvxStringT& name,
                                   std::function<void(const std::vector<OvxUtils::Any>&)> listener)
    {
        return queue.Subscribe(name, std::move(listener));
    }

    /// Ends a subscription; does nothing for an unknown token. May be called from inside a listener.
    void Unsubscribe(ListenerToken token) { queue.Unsubscribe(token); }

    /// Delivers what waits; called by the application when it is idle. What is queued meanwhile waits for the
    /// next call.
    ///
    /// @returns how many events were delivered.
    /// @throws whatever the first failing listener threw, after the last event was delivered.
    std::size_t DeliverPending()
    {
        ThreadingPolicy::Check();
        return queue.Deliver([](const OvxStringT& name) { UpdatePolicy::PreNotify(name); });
    }

private:
    template <class... Arguments, std::size_t... Index>
    static void Apply(const std::function<void(Arguments...)>& call,
                      const std::vector<OvxUtils::Any>& arguments, std::index_sequence<Index...>)
    {
        call(arguments.at(Index).template Get<std::remove_cvref_t<Arguments>>()...);
    }

    EventQueue queue;
};
