#pragma once

#include "host/data_binding/PendingEventBase.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"

#include <tuple>
#include <utility>
#include <vector>

/// A waiting event that owns copies of its name and arguments.
template <class... Arguments>
class PendingEvent : public PendingEventBase
{
public:
    /// Keeps copies of what it is given.
    explicit PendingEvent(OvxStringT eventName, Arguments... carried)
        : PendingEventBase(std::move(eventName)), arguments(std::move(carried)...)
    {
    }

    [[nodiscard]] std::vector<OvxUtils::Any> GetArguments() const override
    {
        return std::apply([](const auto&... each)
                          { return std::vector<OvxUtils::Any>{OvxUtils::Any(each)...}; },
                          arguments);
    }

private:
    std::tuple<Arguments...> arguments;
};
