#pragma once

#include "bench/notification/NotifiedRow.h"

#include <QObject>
#include <cstddef>

namespace Bench
{

/// A Qt object with a signal for each row.
class QtRows final : public QObject
{
    Q_OBJECT

signals:
    void WidthChanged();
    void ColorChanged();
    void DashChanged();
    void JoinChanged();
    void CapChanged();
    void ArrowChanged();
};

/// Functions that are connected directly to signals of a Qt object.
class QtNotifier
{
public:
    /// Adds that many listeners.
    QtNotifier(std::size_t listeners, ListenedName listened);

    /// Tells of one row.
    ///
    /// @returns how many listeners heard it.
    std::size_t Notify();

private:
    QtRows rows;
    QObject listener;
    std::size_t heard = 0;
};

} // namespace Bench
