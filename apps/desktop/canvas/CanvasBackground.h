#pragma once

#include "apps/desktop/canvas/CanvasPage.h"
#include "apps/desktop/canvas/CanvasView.h"

#include <QPalette>
#include <QPixmap>
#include <QPointF>
#include <QRegion>
#include <QSize>
#include <QTransform>

namespace Desktop
{

/// The page as it was last painted, so that moving it paints only what comes into view.
class CanvasBackground
{
public:
    /// Everything is painted anew.
    void Forget();

    /// This part is painted anew, in pixels of the widget.
    void Forget(const QRegion& part);

    /// Moves what is painted; false, and everything is painted anew, where it would no longer lie on whole
    /// pixels.
    bool MoveBy(QPointF pixels);

    /// Shows what is painted larger by that factor about a fixed place, or smaller by one below 1, until
    /// everything is forgotten. Much quicker than painting anew, and blurred: for the time while a person
    /// turns the wheel.
    void Stretch(QPointF fixed, double factor);

    /// Tells whether what is shown was stretched, and should be painted anew once there is time.
    [[nodiscard]] bool IsStretched() const noexcept { return !stretched.isNull(); }

    /// Paints what is missing and returns the whole, `size` in pixels of the widget, each of which has
    /// `ratio` pixels of the screen. `page` may be null.
    const QPixmap& Update(QSize size, double ratio, CanvasPage* page, const CanvasView& view,
                          const QPalette& palette);

private:
    void Paint(const QRect& part, CanvasPage* page, const CanvasView& view, const QPalette& palette);
    void PaintStretched(const CanvasPage* page, const CanvasView& view, const QPalette& palette);

    QPixmap pixmap;
    QRegion missing;    ///< In pixels of the widget.
    QPixmap stretched;  ///< What was painted last at its true size; null where nothing is stretched.
    QTransform stretch; ///< From where that was painted to where it is shown.
};

} // namespace Desktop
