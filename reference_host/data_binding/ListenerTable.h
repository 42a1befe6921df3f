#pragma once

#include "host/data_binding/ListenerToken.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/data_binding/DataSourceLifetime.h"
#include "reference_host/data_binding/FirstFailure.h"
#include "reference_host/data_binding/NameLookup.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

namespace ReferenceHost
{

/// Listeners by name, called with `Arguments`.
///
/// Listeners may be added and removed from inside a call, and the table itself may be cleared or destroyed
/// there: a running Notify works on its own copy of the subscriptions and skips those that have ended.
template <class... Arguments>
class ListenerTable
{
public:
    using Listener = std::function<void(const Arguments&...)>;

    ListenerTable() = default;
    ListenerTable(const ListenerTable&) = delete;
    ListenerTable& operator=(const ListenerTable&) = delete;

    ~ListenerTable() { Clear(); }

    /// Adds a listener behind the others of that name.
    ListenerToken Add(OvxStringViewT name, Listener listener)
    {
        const ListenerToken token{++lastId};
        auto subscription =
            std::make_shared<Subscription>(Subscription{token, OvxStringT(name), std::move(listener), true});
        // By its token first, so that a subscription that comes half way can be taken back.
        byToken.emplace(token.id, subscription);
        try
        {
            byName[subscription->name].push_back(subscription);
        }
        catch (...)
        {
            Remove(token);
            throw;
        }
        return token;
    }

    /// Ends a subscription; does nothing for an unknown token.
    void Remove(ListenerToken token)
    {
        const auto found = byToken.find(token.id);
        if (found == byToken.end())
            return;

        const std::shared_ptr<Subscription> ended = found->second;
        ended->active = false;
        byToken.erase(found);
        const auto row = byName.find(ended->name);
        if (row == byName.end())
            return;
        std::erase(row->second, ended);
        if (row->second.empty())
            byName.erase(row);
    }

    /// Ends all subscriptions.
    void Clear()
    {
        for (const auto& [id, subscription] : byToken)
            subscription->active = false;
        byName.clear();
        byToken.clear();
    }

    /// Calls the listeners that `name` has now, in order, except those that end before their turn.
    ///
    /// All of them are called, also when one throws.
    ///
    /// @throws whatever the first failing listener threw, after the last one was called.
    void Notify(OvxStringViewT name, const Arguments&... arguments)
    {
        const auto row = byName.find(name);
        if (row == byName.end())
            return;

        // From here on nothing of this object is touched: a listener may destroy it.
        const std::vector<std::shared_ptr<Subscription>> subscriptions = row->second;
        const NotificationScope scope;
        FirstFailure failure;
        for (const auto& subscription : subscriptions)
        {
            if (subscription->active)
                failure.Run([&] { subscription->listener(arguments...); });
        }
        failure.Rethrow();
    }

private:
    struct Subscription
    {
        ListenerToken token;
        OvxStringT name;
        Listener listener;
        bool active; ///< False once it has ended, for the deliveries that still hold it.
    };

    NameMap<std::vector<std::shared_ptr<Subscription>>> byName;
    std::unordered_map<std::uint64_t, std::shared_ptr<Subscription>> byToken;
    std::uint64_t lastId = 0;
};

} // namespace ReferenceHost
