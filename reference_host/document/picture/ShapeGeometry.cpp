#include "reference_host/document/picture/ShapeGeometry.h"

#include "reference_host/document/Measures.h"
#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/picture/ContourBuilder.h"
#include "reference_host/document/picture/CustomShape.h"
#include "reference_host/document/picture/NumberScanner.h"
#include "reference_host/document/picture/PathData.h"
#include "reference_host/document/picture/ShapeElement.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <optional>
#include <string_view>
#include <utility>

namespace ReferenceHost
{

namespace
{

void AddPart(ShapePicture& target, Contour contour, bool isFilled)
{
    if (!contour.empty())
        target.parts.push_back({std::move(contour), isFilled, true});
}

/// A line takes up what its contour does.
void AddLine(ShapePicture& target, Contour contour)
{
    target.box = target.textArea = BoundsOf(contour);
    target.isLine = true;
    AddPart(target, std::move(contour), false);
}

void ReadRectangle(const ShapeElement& shape, ShapePicture& target)
{
    const double radius = std::max(shape.DrawLength("corner-radius"), shape.Length("rx"));
    AddPart(target, RectangleContour(target.box, radius), true);
}

void ReadOutlineOfBox(const ShapeElement& /*shape*/, ShapePicture& target)
{
    target.isExact = false;
    AddPart(target, RectangleContour(target.box), true);
}

/// A frame is as high as it is; one for text only may give the least instead.
void ReadFrame(const ShapeElement& shape, ShapePicture& target)
{
    XmlNames& names = shape.GetNames();
    for (const pugi::xml_node child : shape.GetNode().children())
    {
        const XmlNames::Scope scope(names, child);
        if (names.Of(child) != XmlName{Odf::kDraw, "text-box"})
            continue;
        const auto least = [&](std::string_view local) {
            return static_cast<double>(ParseLength(names.Attribute(child, {Odf::kFo, local})).value_or(0));
        };
        target.box.width = std::max(target.box.width, least("min-width"));
        target.box.height = std::max(target.box.height, least("min-height"));
        const double radius = ParseLength(names.Attribute(child, {Odf::kDraw, "corner-radius"})).value_or(0);
        target.textArea = target.box;
        return AddPart(target, RectangleContour(target.box, radius), true);
    }
    AddPart(target, RectangleContour(target.box), true);
}

double DegreesOf(std::string_view text)
{
    return NumberScanner(text).TakeNumber().value_or(0);
}

void ReadEllipse(const ShapeElement& shape, ShapePicture& target)
{
    if (shape.HasSvg("cx"))
    {
        const double radius = shape.Length("r");
        const double across = shape.HasSvg("r") ? radius : shape.Length("rx");
        const double down = shape.HasSvg("r") ? radius : shape.Length("ry");
        target.box = {shape.Length("cx") - across, shape.Length("cy") - down, 2 * across, 2 * down};
        target.textArea = target.box;
    }
    const Box& box = target.box;
    const Ellipse ellipse{box.At(0.5, 0.5), box.width / 2, box.height / 2};
    const std::string_view kind = shape.Draw("kind");
    ContourBuilder builder;
    if (kind != "section" && kind != "cut" && kind != "arc")
    {
        builder.Follow(ellipse, 0, 360, false);
        builder.Close();
        return AddPart(target, builder.Take(), true);
    }
    // In the file, angles are counterclockwise.
    const double start = DegreesOf(shape.Draw("start-angle"));
    double sweep = std::fmod(DegreesOf(shape.Draw("end-angle")) - start, 360);
    if (sweep <= 0)
        sweep += 360;
    if (kind == "section")
        builder.MoveTo(ellipse.centre);
    builder.Follow(ellipse, -start, -sweep, kind == "section");
    target.isLine = kind == "arc";
    if (!target.isLine)
        builder.Close();
    AddPart(target, builder.Take(), !target.isLine);
}

Contour LineBetween(Point start, Point end)
{
    ContourBuilder builder;
    builder.MoveTo(start);
    builder.LineTo(end);
    return builder.Take();
}

/// The way from `start` to `end` in degrees, turned around where text would stand on its head.
double ReadableAngle(Point start, Point end)
{
    const double angle = std::atan2(end.y - start.y, end.x - start.x) * 180 / std::numbers::pi;
    if (angle > 90)
        return angle - 180;
    return angle <= -90 ? angle + 180 : angle;
}

Point StartOf(const ShapeElement& shape)
{
    return {shape.Length("x1"), shape.Length("y1")};
}

Point EndOf(const ShapeElement& shape)
{
    return {shape.Length("x2"), shape.Length("y2")};
}

void ReadStraightLine(const ShapeElement& shape, ShapePicture& target)
{
    AddLine(target, LineBetween(StartOf(shape), EndOf(shape)));
    target.textAngle = ReadableAngle(StartOf(shape), EndOf(shape));
}

/// A line beside what is measured, with a guide from each end of it.
void ReadMeasure(const ShapeElement& shape, ShapePicture& target)
{
    const Point start = StartOf(shape);
    const Point end = EndOf(shape);
    const double length = std::hypot(end.x - start.x, end.y - start.y);
    if (length <= 0)
        return ReadStraightLine(shape, target);
    const ShapeDetails& details = target.details;
    const auto beside = [&](Point point, double distance)
    {
        return Point{point.x + distance * (end.y - start.y) / length,
                     point.y - distance * (end.x - start.x) / length};
    };
    const double distance = details.measureDistance;
    AddLine(target, LineBetween(beside(start, distance), beside(end, distance)));
    const double side = distance < 0 ? -1 : 1;
    for (const Point corner : {start, end})
    {
        target.parts.push_back({LineBetween(beside(corner, side * details.guideGap),
                                            beside(corner, distance + side * details.guideOverhang)),
                                false, true, false});
    }
    target.textAngle = ReadableAngle(start, end);
    target.isTextAbove = true;
}

/// The way of a connector that does not give it: across, down and across for one of the standard kind.
Contour ConnectorRoute(std::string_view type, Point start, Point end)
{
    if (!type.empty() && type != "standard")
        return LineBetween(start, end);
    const double middle = (start.x + end.x) / 2;
    ContourBuilder builder;
    builder.MoveTo(start);
    builder.LineTo({middle, start.y});
    builder.LineTo({middle, end.y});
    builder.LineTo(end);
    return builder.Take();
}

/// The path of a connector is in hundredths of a millimetre, whatever its view box says; programs that count
/// it from elsewhere are put right by its start.
void ReadConnector(const ShapeElement& shape, ShapePicture& target)
{
    Contour path = ParsePathData(shape.Svg("d"));
    const Point start = StartOf(shape);
    if (path.size() < 2)
        return AddLine(target, ConnectorRoute(shape.Draw("type"), start, EndOf(shape)));
    const Point drawn = path.front().end;
    AddLine(target, Mapped(path, {1, 0, 0, 1, start.x - drawn.x, start.y - drawn.y}));
}

/// The view box of a shape, else what its contour takes up.
Box ViewBoxOf(const ShapeElement& shape, const Contour& contour)
{
    const std::optional<Box> viewBox = ParseViewBox(shape.Svg("viewBox"));
    return viewBox && viewBox->width >= 0 && viewBox->height >= 0 ? *viewBox : BoundsOf(contour);
}

void ReadPoints(const ShapeElement& shape, PointsEnd end, ShapePicture& target)
{
    const Contour contour = ParsePoints(shape.Draw("points"), end);
    target.isLine = end == PointsEnd::Open;
    AddPart(target, Mapped(contour, Transform::Between(ViewBoxOf(shape, contour), target.box)),
            !target.isLine);
}

void ReadPolyline(const ShapeElement& shape, ShapePicture& target)
{
    ReadPoints(shape, PointsEnd::Open, target);
}

void ReadPolygon(const ShapeElement& shape, ShapePicture& target)
{
    ReadPoints(shape, PointsEnd::Closed, target);
}

void ReadPath(const ShapeElement& shape, ShapePicture& target)
{
    const Contour contour = ParsePathData(shape.Svg("d"));
    target.isLine = std::ranges::find(contour, ContourStep::Kind::Close, &ContourStep::kind) == contour.end();
    AddPart(target, Mapped(contour, Transform::Between(ViewBoxOf(shape, contour), target.box)),
            !target.isLine);
}

/// The corners lie on the ellipse in the box, the first at the top; those of a star lie between others
/// farther in.
void ReadRegularPolygon(const ShapeElement& shape, ShapePicture& target)
{
    constexpr double kMostCorners = 1000;
    const double asked = NumberScanner(shape.Draw("corners")).TakeNumber().value_or(0);
    const int corners = static_cast<int>(std::clamp(asked, 3.0, kMostCorners));
    const bool isStar = shape.Draw("concave") == "true";
    const double inner = 1 - ParsePercent(shape.Draw("sharpness")).value_or(0) / 100;
    const Ellipse outside{target.box.At(0.5, 0.5), target.box.width / 2, target.box.height / 2};
    const Ellipse inside{outside.centre, outside.radiusX * inner, outside.radiusY * inner};
    const int points = isStar ? 2 * corners : corners;
    ContourBuilder builder;
    for (int point = 0; point < points; ++point)
    {
        const bool isInside = isStar && point % 2 == 1;
        const Point place = (isInside ? inside : outside).At(360.0 * point / points - 90);
        if (point == 0)
            builder.MoveTo(place);
        else
            builder.LineTo(place);
    }
    builder.Close();
    AddPart(target, builder.Take(), true);
}

void ReadCaption(const ShapeElement& shape, ShapePicture& target)
{
    ReadRectangle(shape, target);
    const Box& box = target.box;
    const Point tip{box.left + shape.DrawLength("caption-point-x"),
                    box.top + shape.DrawLength("caption-point-y")};
    ContourBuilder builder;
    builder.MoveTo(tip);
    builder.LineTo({std::clamp(tip.x, box.left, box.left + box.width),
                    std::clamp(tip.y, box.top, box.top + box.height)});
    AddPart(target, builder.Take(), false);
}

void ReadCustom(const ShapeElement& shape, ShapePicture& target)
{
    if (!ReadCustomShape(shape, target))
        ReadOutlineOfBox(shape, target);
}

struct Kind
{
    std::string_view element;
    void (*read)(const ShapeElement& shape, ShapePicture& target);
};

/// All other kinds have no outline of their own.
constexpr std::array<Kind, 13> kKinds{{{"rect", ReadRectangle},
                                       {"frame", ReadFrame},
                                       {"ellipse", ReadEllipse},
                                       {"circle", ReadEllipse},
                                       {"line", ReadStraightLine},
                                       {"measure", ReadMeasure},
                                       {"connector", ReadConnector},
                                       {"polyline", ReadPolyline},
                                       {"polygon", ReadPolygon},
                                       {"path", ReadPath},
                                       {"regular-polygon", ReadRegularPolygon},
                                       {"caption", ReadCaption},
                                       {"custom-shape", ReadCustom}}};

} // namespace

void ReadGeometry(pugi::xml_node shape, XmlNames& names, ShapePicture& target)
{
    const ShapeElement element(shape, names);
    target.box = target.textArea = element.ReadBox();
    target.toPage = ParseTransform(element.Draw("transform"));
    const std::string_view local = names.Of(shape).local;
    const auto* const kind = std::ranges::find(kKinds, local, &Kind::element);
    if (kind == kKinds.end())
        ReadOutlineOfBox(element, target);
    else
        kind->read(element, target);
}

} // namespace ReferenceHost
