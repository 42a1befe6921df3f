#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QTransform>

namespace Desktop
{

/// Which part of a page is seen, and how large. The page is in hundredths of a millimetre, the view in
/// pixels.
class CanvasView
{
public:
    /// The whole page in the middle of a view of that size, with a margin around it.
    void Fit(QSizeF page, QSizeF viewSize);

    /// Makes everything larger by that factor, and smaller by one below 1, within limits; what is at `fixed`
    /// in the view stays there.
    void ZoomAt(QPointF fixed, double factor);

    void MoveBy(QPointF pixels);

    /// Pixels for a hundredth of a millimetre.
    [[nodiscard]] double GetScale() const noexcept { return scale; }

    [[nodiscard]] QTransform GetTransform() const;
    [[nodiscard]] QPointF ToPage(QPointF inView) const;
    [[nodiscard]] QRectF ToPage(const QRectF& inView) const;
    [[nodiscard]] QRectF ToView(const QRectF& onPage) const;

private:
    double scale = 0.05;
    QPointF origin; ///< Where the corner of the page is in the view.
};

} // namespace Desktop
