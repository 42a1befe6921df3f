#pragma once

#include "host/data_binding/ListenerToken.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/data_binding/DataSourceLifetime.h"
#include "reference_host/data_binding/FirstFailure.h"
#include "reference_host/data_binding/NameLookup.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

namespace ReferenceHost
{

/// Listeners by name, called with one `Argument`.
///
/// Listeners may be added and removed from inside a call, and the table itself may be cleared or destroyed
/// there: a running delivery calls those that there were when it began, and skips those that have ended.
/// Delivering allocates nothing and takes no copies, so that it costs little more than the calls themselves
/// (the benchmark notification_same).
template <class Argument>
class ListenerTable
{
public:
    using Listener = std::function<void(const Argument&)>;

    ListenerTable() = default;
    ListenerTable(const ListenerTable&) = delete;
    ListenerTable& operator=(const ListenerTable&) = delete;

    ~ListenerTable() { Clear(); }

    /// Adds a listener behind the others of that name.
    ListenerToken Add(OvxStringViewT name, Listener listener)
    {
        const ListenerToken token{++lastId};
        const auto subscription = std::make_shared<Subscription>(std::move(listener));
        // By its token first, so that a subscription that comes half way can be taken back.
        const auto entered = byToken.emplace(token.id, subscription).first;
        try
        {
            subscription->row = &NeedRow(name);
            subscription->row->subscriptions.push_back(subscription);
        }
        catch (...)
        {
            byToken.erase(entered);
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
        const Passage passage(*ended->row);
        ended->row->hasEnded = true;
    }

    /// Ends all subscriptions.
    void Clear()
    {
        // What goes with a listener may call back in here, and finds nothing.
        const auto tokens = std::exchange(byToken, {});
        auto rows = std::exchange(byName, {});
        for (const auto& [id, subscription] : tokens)
            subscription->active = false;
        for (auto& [name, row] : rows)
            LetGo(std::move(row));
    }

    /// Calls the listeners that `name` has now, in order, except those that end before their turn.
    ///
    /// All of them are called, also when one throws.
    ///
    /// @throws whatever the first failing listener threw, after the last one was called.
    void Notify(OvxStringViewT name, const Argument& argument)
    {
        const auto found = byName.find(name);
        if (found != byName.end())
            Deliver(*found->second, argument);
    }

    /// As Notify(); the argument is the name itself. The text behind `name` may go from inside a call.
    void NotifyOfName(OvxStringViewT name)
    {
        const auto found = byName.find(name);
        if (found != byName.end())
            Deliver(*found->second, found->second->name);
    }

private:
    struct Row;

    struct Subscription
    {
        explicit Subscription(Listener call) : listener(std::move(call)) {}

        Listener listener;
        Row* row = nullptr; ///< Lives as long as this is active.
        bool active = true; ///< False once it has ended, for the deliveries that still come to it.
    };

    /// The listeners of one name. Owned by its table, and once that let it go by the passages through it.
    struct Row
    {
        Row(ListenerTable& holder, OvxStringViewT rowName) : table(&holder), name(rowName) {}

        /// Takes out what has ended. While a delivery runs nobody is taken out: the places that it counts by
        /// stay.
        void LetGoOfEnded()
        {
            hasEnded = false;
            for (;;)
            {
                const auto place = std::find_if(subscriptions.begin(), subscriptions.end(),
                                                [](const auto& each) { return !each->active; });
                if (place == subscriptions.end())
                    break;
                // What goes with a listener may call back in here: by then the row is whole again.
                const std::shared_ptr<Subscription> ended = std::move(*place);
                subscriptions.erase(place);
            }
        }

        ListenerTable* table; ///< Null once the table let it go.
        OvxStringT name;
        std::vector<std::shared_ptr<Subscription>> subscriptions;
        int passages = 0;      ///< Those on the way through it.
        bool hasEnded = false; ///< Whether one of the subscriptions is no longer active.
    };

    /// Somebody on the way through a row, which stays that long. The last one takes out what ended meanwhile,
    /// and the row with it when nothing is left. Counted here: the count of a shared pointer costs about as
    /// much as calling five listeners (the benchmark notification_same).
    class Passage
    {
    public:
        explicit Passage(Row& itsRow) noexcept : row(itsRow) { ++row.passages; }

        Passage(const Passage&) = delete;
        Passage& operator=(const Passage&) = delete;

        ~Passage()
        {
            // What goes with a listener may come through here again.
            if (row.passages == 1 && row.hasEnded)
                row.LetGoOfEnded();
            if (--row.passages == 0)
                EndIfNeedless(row);
        }

    private:
        static void EndIfNeedless(Row& left)
        {
            if (left.table == nullptr)
                delete &left;
            else if (left.subscriptions.empty())
                left.table->Forget(left);
        }

        Row& row;
    };

    /// Ends a row now, or when the last one on the way through it is through.
    static void LetGo(std::unique_ptr<Row> row)
    {
        row->table = nullptr;
        if (row->passages != 0)
            static_cast<void>(row.release());
    }

    /// Nothing of this object is touched, which a listener may destroy.
    static void Deliver(Row& row, const Argument& argument)
    {
        const Passage passage(row);
        const NotificationScope scope;
        FirstFailure failure;
        const std::size_t count = row.subscriptions.size();
        for (std::size_t i = 0; i < count; ++i)
        {
            const Subscription& subscription = *row.subscriptions[i];
            if (subscription.active)
                failure.Run([&] { subscription.listener(argument); });
        }
        failure.Rethrow();
    }

    Row& NeedRow(OvxStringViewT name)
    {
        const auto found = byName.find(name);
        if (found != byName.end())
            return *found->second;

        // With a place for its first listener: no row stays behind without one.
        auto row = std::make_unique<Row>(*this, name);
        row->subscriptions.reserve(1);
        Row& made = *row;
        byName.emplace(made.name, std::move(row));
        return made;
    }

    /// Ends a row of this table.
    void Forget(const Row& row) noexcept { byName.erase(byName.find(row.name)); }

    NameMap<std::unique_ptr<Row>> byName;
    std::unordered_map<std::uint64_t, std::shared_ptr<Subscription>> byToken;
    std::uint64_t lastId = 0;
};

} // namespace ReferenceHost
