#pragma once

#include "host/Export.h"
#include "host/data_binding/ListenerToken.h"
#include "host/utils/OvxStringT.h"

#include <functional>
#include <memory>

/// An object that tells listeners which of its properties changed. All on the user interface's thread.
class STYLEPROPERTIES_HOST_API IBroadcaster
{
public:
    IBroadcaster(const IBroadcaster&) = delete;
    IBroadcaster& operator=(const IBroadcaster&) = delete;
    virtual ~IBroadcaster();

    /// Tells the listeners of a property name, or of several joined by commas without spaces, in that order.
    ///
    /// Listeners of one name are called in the order in which they were added; one that is removed meanwhile
    /// is not called any more, one that is added meanwhile not yet. A listener may destroy this object:
    /// nothing after that call is delivered. Empty names among the joined ones are passed over.
    ///
    /// All listeners are called, also when one throws.
    ///
    /// @throws whatever the first failing listener threw, after the last one was called.
    void UpdateListeners(OvxStringViewT names);

    /// Calls `listener` with the name for each change of the property `name` (one name, no commas).
    ListenerToken AddListener(OvxStringViewT name, std::function<void(const OvxStringT& name)> listener);

    /// Ends a subscription; does nothing for an unknown token. May be called from inside a listener, for
    /// itself too.
    void RemoveListener(ListenerToken token);

protected:
    IBroadcaster();

private:
    struct Listeners;

    std::shared_ptr<Listeners>
        listeners; ///< Shared with running deliveries, which outlive a destroyed object.
};
