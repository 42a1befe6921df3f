#pragma once

#include "host/data_binding/ListenerToken.h"
#include "host/utils/OvxStringT.h"
#include "tiny_host/broken/Promises.h"

#include <algorithm>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace TinyHost
{

/// Counts the deliveries that are under way, for as long as it lives.
class DeliveryScope
{
public:
    DeliveryScope() noexcept { ++depth; }

    DeliveryScope(const DeliveryScope&) = delete;
    DeliveryScope& operator=(const DeliveryScope&) = delete;

    ~DeliveryScope() { --depth; }

    [[nodiscard]] static bool IsAnyOpen() noexcept { return depth != 0; }

private:
    static inline int depth = 0;
};

/// Makes several calls although some of them throw, and throws the first of these failures at the end.
class Calls
{
public:
    template <class Call>
    void Make(const Call& call)
    {
        try
        {
            call();
        }
        catch (...)
        {
            if (failure == nullptr)
                failure = std::current_exception();
        }
    }

    void Finish() const
    {
        if (failure != nullptr)
            std::rethrow_exception(failure);
    }

private:
    std::exception_ptr failure;
};

/// Listeners of several names, in the order in which they came. They may come, go and destroy the row while
/// they are called.
template <class Argument>
class ListenerRow
{
public:
    using Listener = std::function<void(const Argument&)>;

    ListenerToken Add(OvxStringViewT name, Listener listener)
    {
        const ListenerToken token{++lastId};
        row.push_back(
            std::make_shared<Subscription>(Subscription{token, OvxStringT(name), std::move(listener)}));
        return token;
    }

    void Remove(ListenerToken token)
    {
        std::erase_if(row,
                      [token](const auto& each)
                      {
                          const bool isMeant = each->token == token;
                          each->hasEnded = each->hasEnded || isMeant;
                          return isMeant;
                      });
    }

    void Clear()
    {
        for (const auto& each : row)
            each->hasEnded = true;
        row.clear();
    }

    /// Calls the listeners that `name` has now and still has when their turn comes.
    ///
    /// @throws whatever the first failing listener threw, after the last one was called.
    void Notify(OvxStringViewT name, const Argument& argument)
    {
        // Copies: nothing of this object is touched once the first listener was called.
        auto called = row;
        std::erase_if(called, [name](const auto& each) { return !(each->name == name); });
        const DeliveryScope scope;
        Calls calls;
        for (const auto& each : called)
        {
            if (!each->hasEnded || !Keeps(Promise::EndedListenersAreNotCalled))
                calls.Make([&] { each->listener(argument); });
        }
        calls.Finish();
    }

private:
    struct Subscription
    {
        ListenerToken token;
        OvxStringT name;
        Listener listener;
        bool hasEnded = false;
    };

    std::vector<std::shared_ptr<Subscription>> row;
    std::uint64_t lastId = 0;
};

} // namespace TinyHost
