#include "apps/desktop/canvas/CanvasPage.h"

#include "apps/desktop/painting/PaintInside.h"
#include "apps/desktop/painting/PaintShape.h"
#include "apps/desktop/painting/ShapePaths.h"
#include "reference_host/document/DrawingObject.h"

#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <utility>

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
    : size(page.width, page.height), background(&page.background), materials(&paintMaterials)
{
    if (page.behind != nullptr)
    {
        behind.reserve(page.behind->size());
        for (const ReferenceHost::ShapePicture& shape : *page.behind)
            behind.emplace_back(shape, reader);
    }
    shapes.reserve(page.shapes.size());
    for (const ReferenceHost::ShapePicture& shape : page.shapes)
        shapes.emplace_back(shape, reader);
}

void CanvasPage::PaintBackground(QPainter& painter)
{
    using Kind = ReferenceHost::PageBackground::Kind;
    using Inside = Workbench::InsideLook::Kind;
    constexpr std::array<std::pair<Kind, Inside>, 4> kKinds{{{Kind::Solid, Inside::Solid},
                                                             {Kind::Gradient, Inside::Gradient},
                                                             {Kind::Hatch, Inside::Hatch},
                                                             {Kind::Bitmap, Inside::Bitmap}}};
    Workbench::InsideLook look;
    for (const auto& [kind, inside] : kKinds)
    {
        if (kind == background->kind)
            look.kind = inside;
    }
    look.colour = background->colour;
    look.transparency = background->transparency;
    look.definition = background->definition;
    QPainterPath path;
    path.addRect(RectangleOf(background->box));
    PaintInside(painter, path, RectangleOf(background->box), look, background->details, *materials);
}

void CanvasPage::Paint(QPainter& painter, const QRectF& visible)
{
    PaintBackground(painter);
    for (std::vector<CanvasShape>* const layer : {&behind, &shapes})
    {
        for (CanvasShape& shape : *layer)
        {
            if (shape.GetPaintedBounds().intersects(visible))
                PaintShape(painter, shape, *materials);
        }
    }
}

DrawingObject* CanvasPage::FindAt(QPointF point, double tolerance)
{
    const auto isHere = [&](CanvasShape& shape) { return shape.IsAt(point, tolerance); };
    const auto topmost = std::find_if(shapes.rbegin(), shapes.rend(), isHere);
    return topmost == shapes.rend() ? nullptr : topmost->GetPicture().object;
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

DrawingObject* CanvasPage::FindNext(const DrawingObject* from, bool isBackwards) const
{
    if (shapes.empty())
        return nullptr;
    const auto place = std::ranges::find(shapes, from,
                                         [](const CanvasShape& shape) -> const DrawingObject*
                                         { return shape.GetPicture().object; });
    const std::size_t count = shapes.size();
    std::size_t next = isBackwards ? count - 1 : 0;
    if (place != shapes.end())
        next = (static_cast<std::size_t>(place - shapes.begin()) + (isBackwards ? count - 1 : 1)) % count;
    return shapes[next].GetPicture().object;
}

std::vector<QRectF> CanvasPage::RefreshLooks()
{
    std::vector<QRectF> changed;
    reader.Forget();
    for (std::vector<CanvasShape>* const layer : {&behind, &shapes})
    {
        for (CanvasShape& shape : *layer)
        {
            const QRectF before = shape.GetPaintedBounds();
            if (shape.RefreshLook())
                changed.push_back(before | shape.GetPaintedBounds());
        }
    }
    return changed;
}

} // namespace Desktop
