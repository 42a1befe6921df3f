#include "bench/notification/LibraryNotifier.h"

#include "host/utils/Utf8.h"

namespace Bench
{

LibraryNotifier::LibraryNotifier(std::size_t listeners, ListenedName listened)
    : notifiedName(OvxUtils::FromUtf8(kNotifiedRows.front()))
{
    panel.FinishConstruction();
    for (std::size_t i = 0; i < listeners; ++i)
        panel.AddListener(OvxUtils::FromUtf8(kNotifiedRows[ListenedRow(listened, i)]),
                          [this](const OvxStringT&) { ++heard; });
}

std::size_t LibraryNotifier::Notify()
{
    heard = 0;
    panel.UpdateListeners(notifiedName);
    return heard;
}

} // namespace Bench
