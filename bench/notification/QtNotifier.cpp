#include "bench/notification/QtNotifier.h"

#include <array>

namespace Bench
{

QtNotifier::QtNotifier(std::size_t listeners, ListenedName listened)
{
    constexpr std::array<void (QtRows::*)(), kNotifiedRows.size()> kSignals{
        &QtRows::WidthChanged, &QtRows::ColorChanged, &QtRows::DashChanged,
        &QtRows::JoinChanged,  &QtRows::CapChanged,   &QtRows::ArrowChanged};
    for (std::size_t i = 0; i < listeners; ++i)
        QObject::connect(
            &rows, kSignals[ListenedRow(listened, i)], &listener, [this] { ++heard; }, Qt::DirectConnection);
}

std::size_t QtNotifier::Notify()
{
    heard = 0;
    emit rows.WidthChanged();
    return heard;
}

} // namespace Bench
