#pragma once

#include "apps/desktop/canvas/CanvasShape.h"
#include "apps/desktop/painting/PaintMaterials.h"
#include "reference_host/document/picture/DrawingPicture.h"

#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <cstddef>
#include <set>
#include <vector>

namespace Desktop
{

/// Objects of a drawing, in no order that means anything.
using ObjectSet = std::set<ReferenceHost::DrawingObject*>;

/// One page of a drawing as it is painted and pointed at; all places are on the page. Borrows both.
class CanvasPage
{
public:
    CanvasPage(const ReferenceHost::PagePicture& page, PaintMaterials& paintMaterials);
    CanvasPage(const CanvasPage&) = delete;
    CanvasPage& operator=(const CanvasPage&) = delete;

    [[nodiscard]] QSizeF GetSize() const noexcept { return size; }

    [[nodiscard]] std::size_t CountShapes() const noexcept { return shapes.size(); }

    /// Paints the background of the page and the shapes that may be seen within `visible`, in order.
    void Paint(QPainter& painter, const QRectF& visible);

    /// The topmost object there, give or take `tolerance`; null for none.
    [[nodiscard]] ReferenceHost::DrawingObject* FindAt(QPointF point, double tolerance);

    /// The objects whose outlines are wholly within a rectangle.
    [[nodiscard]] ObjectSet FindWithin(const QRectF& rectangle) const;

    /// All objects of the page in document order.
    [[nodiscard]] std::vector<ReferenceHost::DrawingObject*> GetObjects() const;

    /// What the outlines of the objects in `selected` take up, one rectangle each. A group in it stands for
    /// its members, which have one rectangle together.
    [[nodiscard]] std::vector<QRectF> BoundsOf(const ObjectSet& selected) const;

    /// The object behind or before another one in document order, the first or the last for null; null
    /// without objects.
    [[nodiscard]] ReferenceHost::DrawingObject* FindNext(const ReferenceHost::DrawingObject* from,
                                                         bool isBackwards) const;

    /// Reads styles anew and returns where shapes were and are painted that look different now.
    [[nodiscard]] std::vector<QRectF> RefreshLooks();

private:
    void PaintBackground(QPainter& painter);

    QSizeF size;
    const ReferenceHost::PageBackground* background;
    PaintMaterials* materials;
    Workbench::LookReader reader;    ///< The shapes read by it.
    std::vector<CanvasShape> behind; ///< Of the master page: seen and never pointed at.
    std::vector<CanvasShape> shapes;
};

} // namespace Desktop
