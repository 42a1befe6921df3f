#include "reference_host/document/picture/CustomShape.h"

#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/picture/EnhancedPath.h"
#include "reference_host/document/picture/NumberScanner.h"
#include "reference_host/document/picture/PathData.h"
#include "reference_host/document/picture/ShapeFormulas.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace ReferenceHost
{

namespace
{

/// The view box as wide or as high as the proportions of the box ask for, where the shape is stretched that
/// way instead of being distorted: the corners of a rounded rectangle stay round however wide it is.
Box Stretched(const Box& viewBox, const ShapeElement& element, const Box& box)
{
    Box stretched = viewBox;
    if (box.width <= 0 || box.height <= 0)
        return stretched;
    const double ratio = (box.width / box.height) / (viewBox.width / viewBox.height);
    if (ratio > 1 && !element.Draw("path-stretchpoint-x").empty())
        stretched.width *= ratio;
    else if (ratio < 1 && !element.Draw("path-stretchpoint-y").empty())
        stretched.height /= ratio;
    return stretched;
}

/// The element that holds the path, its equations and what its handles have set.
class EnhancedGeometry
{
public:
    EnhancedGeometry(pugi::xml_node geometry, XmlNames& xmlNames, const Box& shapeBox)
        : element(geometry, xmlNames), box(shapeBox), formulas(Surround())
    {
        for (const pugi::xml_node child : geometry.children())
        {
            const XmlNames::Scope scope(xmlNames, child);
            if (xmlNames.Of(child) == XmlName{Odf::kDraw, "equation"})
                formulas.Add(xmlNames.Attribute(child, {Odf::kDraw, "name"}),
                             xmlNames.Attribute(child, {Odf::kDraw, "formula"}));
        }
    }

    bool Read(ShapePicture& target)
    {
        std::optional<std::vector<ShapePart>> parts =
            ReadEnhancedPath(element.Draw("enhanced-path"), formulas);
        if (!parts)
            return false;
        const Transform place = Mirror().Then(Transform::Between(viewBox, box));
        for (ShapePart& part : *parts)
            part.contour = Mapped(part.contour, place);
        target.parts = *std::move(parts);
        if (const std::optional<Box> area = ReadTextArea(element.Draw("text-areas"), formulas))
            target.textArea = BoxBetween(place.Map(area->At(0, 0)), place.Map(area->At(1, 1)));
        return true;
    }

private:
    ShapeFormulas::Surroundings Surround()
    {
        viewBox = ParseViewBox(element.Svg("viewBox")).value_or(Box{});
        // Without a view box of its own, the path is in the lengths of the page.
        if (viewBox.width <= 0 || viewBox.height <= 0)
            viewBox = {0, 0, box.width, box.height};
        const Box written = viewBox;
        viewBox = Stretched(written, element, box);
        return {viewBox, box.width, box.height, ReadModifiers(), written.At(1, 1)};
    }

    /// Modifiers that are no numbers count as 0, so that those behind them keep their places.
    [[nodiscard]] std::vector<double> ReadModifiers() const
    {
        NumberScanner scanner(element.Draw("modifiers"));
        std::vector<double> modifiers;
        while (scanner.Peek() != '\0')
        {
            const std::optional<double> number = scanner.TakeNumber();
            if (!number && scanner.TakeWord().empty())
                scanner.Take();
            modifiers.push_back(number.value_or(0));
        }
        return modifiers;
    }

    /// Turns over within the view box. Text stands elsewhere then and is not mirrored itself.
    [[nodiscard]] Transform Mirror() const
    {
        Transform mirror;
        if (element.Draw("mirror-horizontal") == "true")
            mirror = {-1, 0, 0, 1, 2 * viewBox.left + viewBox.width, 0};
        if (element.Draw("mirror-vertical") == "true")
            mirror = mirror.Then({1, 0, 0, -1, 0, 2 * viewBox.top + viewBox.height});
        return mirror;
    }

    static Box BoxBetween(Point corner, Point other)
    {
        return {std::min(corner.x, other.x), std::min(corner.y, other.y), std::abs(other.x - corner.x),
                std::abs(other.y - corner.y)};
    }

    ShapeElement element;
    Box box;
    Box viewBox; ///< Stretched where it is.
    ShapeFormulas formulas;
};

} // namespace

bool ReadCustomShape(const ShapeElement& shape, ShapePicture& target)
{
    XmlNames& names = shape.GetNames();
    for (const pugi::xml_node child : shape.GetNode().children())
    {
        const XmlNames::Scope scope(names, child);
        if (names.Of(child) == XmlName{Odf::kDraw, "enhanced-geometry"})
            return EnhancedGeometry(child, names, target.box).Read(target);
    }
    return false;
}

} // namespace ReferenceHost
