// One notification by name: to 1, 20 and 200 listeners of that name, and past 200 listeners of other names,
// beside one that nobody listens for.

#include "bench/harness/Work.h"
#include "bench/harness/Works.h"
#include "bench/notification/GObjectNotifier.h"
#include "bench/notification/LibraryNotifier.h"
#include "bench/notification/QtNotifier.h"

namespace Bench
{

namespace
{

template <class Contestant>
std::function<void(benchmark::State&)> Notifying(ListenedName listened)
{
    return [listened](benchmark::State& state)
    {
        Contestant contestant(static_cast<std::size_t>(state.range(0)), listened);
        Measure(state, [&contestant] { return contestant.Notify(); });
    };
}

void AddNotification(std::string_view name, std::initializer_list<std::int64_t> listeners,
                     ListenedName listened)
{
    AddWork(name, listeners,
            {{"library", Notifying<LibraryNotifier>(listened)},
             {"qt", Notifying<QtNotifier>(listened)},
             {"gobject", Notifying<GObjectNotifier>(listened)}});
}

} // namespace

void AddNotificationWorks()
{
    AddNotification("notification_same", {1, 20, 200}, ListenedName::Notified);
    AddNotification("notification_other", {0, 200}, ListenedName::Others);
}

} // namespace Bench
