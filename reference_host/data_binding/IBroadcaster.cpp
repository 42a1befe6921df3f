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

namespace
{

void NotifyOfEach(std::wstring_view joined, ReferenceHost::ListenerTable<OvxStringT>& table)
{
    ReferenceHost::FirstFailure failure;
    while (!joined.empty())
    {
        const std::wstring_view name = joined.substr(0, joined.find(L','));
        joined.remove_prefix(std::min(joined.size(), name.size() + 1));
        if (!name.empty())
            failure.Run([&] { table.NotifyOfName(name); });
    }
    failure.Rethrow();
}

} // namespace

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
    if (names.empty())
        return;
    if (names.find(L',') == std::wstring_view::npos)
    {
        listeners->table.NotifyOfName(names);
        return;
    }

    // A listener may destroy this object and whatever holds the names: the copies outlive it, and the table
    // that is kept here is empty then.
    const std::shared_ptr<Listeners> kept = listeners;
    const OvxStringT joined(names);
    NotifyOfEach(joined.Wide(), kept->table);
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
