#include "host/data_binding/IBroadcaster.h"

#include "reference_host/data_binding/FirstFailure.h"
#include "reference_host/data_binding/ListenerTable.h"
#include "reference_host/data_binding/UiThread.h"

#include <algorithm>
#include <string_view>
#include <utility>

struct IBroadcaster::Listeners
{
    ReferenceHost::ListenerTable<OvxStringT> table;
};

IBroadcaster::IBroadcaster() : listeners(std::make_shared<Listeners>())
{
}

IBroadcaster::~IBroadcaster()
{
    listeners->table.Clear();
}

void IBroadcaster::UpdateListeners(OvxStringViewT names)
{
    ReferenceHost::UiThread::Check();

    // A listener may destroy this object and whatever holds the names: the copies outlive it, and the table
    // that is kept here is empty then.
    const std::shared_ptr<Listeners> kept = listeners;
    const OvxStringT joined(names);
    ReferenceHost::FirstFailure failure;
    std::wstring_view rest = joined.Wide();
    while (!rest.empty())
    {
        const std::wstring_view name = rest.substr(0, rest.find(L','));
        rest.remove_prefix(std::min(rest.size(), name.size() + 1));
        if (!name.empty())
            failure.Run([&] { kept->table.Notify(name, OvxStringT(name)); });
    }
    failure.Rethrow();
}

ListenerToken IBroadcaster::AddListener(OvxStringViewT name,
                                        std::function<void(const OvxStringT& name)> listener)
{
    ReferenceHost::UiThread::Check();
    return listeners->table.Add(name, std::move(listener));
}

void IBroadcaster::RemoveListener(ListenerToken token)
{
    ReferenceHost::UiThread::Check();
    listeners->table.Remove(token);
}
