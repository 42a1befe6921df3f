#include "apps/desktop/canvas/CanvasPage.h"

#include "apps/desktop/painting/PaintShape.h"
#include "reference_host/document/DrawingObject.h"

#include <cstddef>
#include <map>
#include <ranges>

namespace Desktop
{
namespace
{

using ReferenceHost::DrawingObject;

/// The outermost of an object and its groups that is selected; null for none.
DrawingObject* FindSelected(DrawingObject* object, const ObjectSet& selected)
{
    DrawingObject* found = nullptr;
    for (DrawingObject* each = object; each != nullptr; each = each->GetGroup())
    {
        if (selected.contains(each))
            found = each;
    }
    return found;
}

} // namespace

CanvasPage::CanvasPage(const ReferenceHost::PagePicture& page, PaintMaterials& paintMaterials)
    : size(page.width, page.height), materials(&paintMaterials)
{
    shapes.reserve(page.shapes.size());
    for (const ReferenceHost::ShapePicture& shape : page.shapes)
        shapes.emplace_back(shape);
}

void CanvasPage::Paint(QPainter& painter, const QRectF& visible)
{
    for (CanvasShape& shape : shapes)
    {
        if (shape.GetPaintedBounds().intersects(visible))
            PaintShape(painter, shape, *materials);
    }
}

DrawingObject* CanvasPage::FindAt(QPointF point, double tolerance)
{
    for (CanvasShape& shape : std::views::reverse(shapes))
    {
        if (shape.IsAt(point, tolerance))
            return shape.GetPicture().object;
    }
    return nullptr;
}

ObjectSet CanvasPage::FindWithin(const QRectF& rectangle) const
{
    ObjectSet found;
    for (const CanvasShape& shape : shapes)
    {
        if (!shape.GetBounds().isNull() && rectangle.contains(shape.GetBounds()))
            found.insert(shape.GetPicture().object);
    }
    return found;
}

std::vector<DrawingObject*> CanvasPage::GetObjects() const
{
    std::vector<DrawingObject*> objects;
    objects.reserve(shapes.size());
    for (const CanvasShape& shape : shapes)
        objects.push_back(shape.GetPicture().object);
    return objects;
}

std::vector<QRectF> CanvasPage::BoundsOf(const ObjectSet& selected) const
{
    std::vector<QRectF> rectangles;
    if (selected.empty())
        return rectangles;
    std::map<DrawingObject*, std::size_t> places;
    for (const CanvasShape& shape : shapes)
    {
        DrawingObject* const object = FindSelected(shape.GetPicture().object, selected);
        if (object == nullptr)
            continue;
        const auto [place, isNew] = places.emplace(object, rectangles.size());
        if (isNew)
            rectangles.push_back(shape.GetBounds());
        else
            rectangles[place->second] |= shape.GetBounds();
    }
    return rectangles;
}

void CanvasPage::ForgetLooks()
{
    for (CanvasShape& shape : shapes)
        shape.ForgetLook();
}

} // namespace Desktop
