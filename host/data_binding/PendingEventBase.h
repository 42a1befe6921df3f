#pragma once

#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"

#include <utility>
#include <vector>

/// An application-wide event that waits for its delivery.
class PendingEventBase
{
public:
    PendingEventBase(const PendingEventBase&) = delete;
    PendingEventBase& operator=(const PendingEventBase&) = delete;
    virtual ~PendingEventBase() = default;

    /// The name under which listeners subscribe.
    [[nodiscard]] const OvxStringT& GetName() const noexcept { return name; }

    /// What the event carries, in order.
    [[nodiscard]] virtual std::vector<OvxUtils::Any> GetArguments() const = 0;

protected:
    /// Keeps the name.
    explicit PendingEventBase(OvxStringT eventName) : name(std::move(eventName)) {}

private:
    OvxStringT name;
};
