#include "reference_host/document/picture/DefinitionReader.h"

#include "reference_host/document/Measures.h"
#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/PropertyCodecs.h"
#include "reference_host/document/StyleNames.h"
#include "reference_host/document/picture/NumberScanner.h"
#include "reference_host/document/picture/PathData.h"

#include "host/utils/Utf8.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <optional>
#include <string_view>
#include <utility>

namespace ReferenceHost
{

namespace
{

/// The attributes of one definition.
class Element
{
public:
    Element(pugi::xml_node definition, XmlNames& xmlNames) : node(definition), names(xmlNames) {}

    [[nodiscard]] std::string_view Draw(std::string_view local) const
    {
        return names.Attribute(node, {Odf::kDraw, local});
    }

    [[nodiscard]] std::string_view Svg(std::string_view local) const
    {
        return names.Attribute(node, {Odf::kSvg, local});
    }

    /// A percentage as a share.
    [[nodiscard]] double Share(std::string_view local, double otherwise) const
    {
        const std::optional<double> percent = ParsePercent(Draw(local));
        return percent ? *percent / 100 : otherwise;
    }

    [[nodiscard]] int Count(std::string_view local) const
    {
        constexpr double kMost = 1000;
        const std::optional<double> number = NumberScanner(Draw(local)).TakeNumber();
        return number ? static_cast<int>(std::clamp(*number, 0.0, kMost)) : 0;
    }

    [[nodiscard]] DashLength Dash(std::string_view local) const
    {
        if (const std::optional<double> percent = ParsePercent(Draw(local)))
            return {*percent / 100, true};
        return {static_cast<double>(std::max(0, ParseLength(Draw(local)).value_or(0))), false};
    }

    /// Degrees of an angle that is in tenths of them where it has no unit.
    [[nodiscard]] double Angle(std::string_view local) const
    {
        NumberScanner scanner(Draw(local));
        const double number = scanner.TakeNumber().value_or(0);
        const std::string_view unit = scanner.TakeWord();
        if (unit == "deg")
            return number;
        if (unit == "rad")
            return number * 180 / std::numbers::pi;
        return unit == "grad" ? number * 0.9 : number / 10;
    }

private:
    pugi::xml_node node;
    XmlNames& names;
};

CLR_COLORSPEC::Rgb ColourOf(std::string_view text)
{
    return ParseColour(text).value_or(CLR_COLORSPEC::Rgb{});
}

/// A colour that is as strong as `intensity`, 0 to 1, says.
CLR_COLORSPEC::Rgb Dimmed(CLR_COLORSPEC::Rgb colour, double intensity)
{
    const auto dim = [&](std::uint8_t component)
    { return static_cast<std::uint8_t>(std::lround(component * std::clamp(intensity, 0.0, 1.0))); };
    return {dim(colour.red), dim(colour.green), dim(colour.blue)};
}

GradientDefinition ReadGradient(const Element& element)
{
    using Kind = GradientDefinition::Kind;
    constexpr std::array<std::pair<std::string_view, Kind>, 6> kinds{{{"linear", Kind::Linear},
                                                                      {"axial", Kind::Axial},
                                                                      {"radial", Kind::Radial},
                                                                      {"ellipsoid", Kind::Ellipsoid},
                                                                      {"square", Kind::Square},
                                                                      {"rectangular", Kind::Rectangular}}};
    GradientDefinition gradient;
    for (const auto& [name, kind] : kinds)
    {
        if (name == element.Draw("style"))
            gradient.kind = kind;
    }
    gradient.stops = {{0, Dimmed(ColourOf(element.Draw("start-color")), element.Share("start-intensity", 1))},
                      {1, Dimmed(ColourOf(element.Draw("end-color")), element.Share("end-intensity", 1))}};
    gradient.angle = element.Angle("angle");
    gradient.border = std::clamp(element.Share("border", 0), 0.0, 1.0);
    gradient.centre = {element.Share("cx", 0.5), element.Share("cy", 0.5)};
    return gradient;
}

/// A gradient of SVG, whose stops are its children; without two of them there is none.
std::optional<GradientDefinition> ReadSvgGradient(pugi::xml_node node, XmlNames& names, bool isRadial)
{
    GradientDefinition gradient;
    gradient.kind = isRadial ? GradientDefinition::Kind::Radial : GradientDefinition::Kind::Linear;
    // From left to right, where nothing turns it.
    gradient.angle = isRadial ? 0 : 90;
    for (const pugi::xml_node child : node.children())
    {
        const XmlNames::Scope scope(names, child);
        if (names.Of(child) != XmlName{Odf::kSvg, "stop"})
            continue;
        const double percent = ParseFraction(names.Attribute(child, {Odf::kSvg, "offset"})).value_or(0);
        const CLR_COLORSPEC::Rgb colour = ColourOf(names.Attribute(child, {Odf::kSvg, "stop-color"}));
        gradient.stops.push_back({percent / 100, colour});
    }
    std::ranges::stable_sort(gradient.stops, {}, &GradientDefinition::Stop::place);
    if (isRadial)
    {
        // Ours begin at the rim.
        std::ranges::reverse(gradient.stops);
        for (GradientDefinition::Stop& stop : gradient.stops)
            stop.place = 1 - stop.place;
    }
    return gradient.stops.size() < 2 ? std::nullopt : std::optional(std::move(gradient));
}

/// The same, with the shares of opacity at its start and its end for colours.
GradientDefinition ReadOpacity(const Element& element)
{
    const auto grey = [&](std::string_view local)
    {
        const double share = std::clamp(element.Share(local, 1), 0.0, 1.0);
        const auto level = static_cast<std::uint8_t>(std::lround(255 * share));
        return CLR_COLORSPEC::Rgb{level, level, level};
    };
    GradientDefinition opacity = ReadGradient(element);
    opacity.stops = {{0, grey("start")}, {1, grey("end")}};
    return opacity;
}

HatchDefinition ReadHatch(const Element& element)
{
    HatchDefinition hatch;
    const std::string_view style = element.Draw("style");
    if (style == "double")
        hatch.directions = 2;
    else if (style == "triple")
        hatch.directions = 3;
    hatch.colour = ColourOf(element.Draw("color"));
    hatch.distance = std::max(1, ParseLength(element.Draw("distance")).value_or(100));
    hatch.angle = element.Angle("rotation");
    return hatch;
}

DashDefinition ReadDash(const Element& element)
{
    DashDefinition dash;
    dash.isRound = element.Draw("style") == "round";
    dash.firstDots = element.Count("dots1");
    dash.firstLength = element.Dash("dots1-length");
    dash.secondDots = element.Count("dots2");
    dash.secondLength = element.Dash("dots2-length");
    dash.distance = element.Dash("distance");
    return dash;
}

/// Sorts the definitions of one XML text into their maps.
class DefinitionSorter
{
public:
    DefinitionSorter(XmlNames& xmlNames, PackagePictures& all, Definitions& definitions)
        : names(xmlNames), pictures(all), target(definitions)
    {
    }

    void Read(pugi::xml_node node)
    {
        const XmlNames::Scope scope(names, node);
        const Element element(node, names);
        const std::string_view encoded = element.Draw("name");
        if (encoded.empty())
            return;
        const std::string_view display = element.Draw("display-name");
        const OvxStringT name = display.empty() ? DecodeStyleName(encoded) : OvxUtils::FromUtf8(display);
        const XmlName kind = names.Of(node);
        if (kind.uri == Odf::kSvg)
            return ReadSvg(node, kind.local, name);
        if (kind.uri == Odf::kDraw)
            ReadDraw(node, element, kind.local, name);
    }

private:
    void ReadSvg(pugi::xml_node node, std::string_view kind, const OvxStringT& name)
    {
        if (kind != "linearGradient" && kind != "radialGradient")
            return;
        if (auto gradient = ReadSvgGradient(node, names, kind == "radialGradient"))
            target.gradients.insert_or_assign(name, *std::move(gradient));
    }

    void ReadDraw(pugi::xml_node node, const Element& element, std::string_view kind, const OvxStringT& name)
    {
        if (kind == "gradient")
            target.gradients.insert_or_assign(name, ReadGradient(element));
        else if (kind == "opacity")
            target.opacities.insert_or_assign(OvxUtils::FromUtf8(element.Draw("name")), ReadOpacity(element));
        else if (kind == "hatch")
            target.hatches.insert_or_assign(name, ReadHatch(element));
        else if (kind == "stroke-dash")
            target.dashes.insert_or_assign(name, ReadDash(element));
        else if (kind == "marker")
            ReadMarker(element, name);
        else if (kind == "fill-image")
        {
            if (PictureBytes bytes = pictures.Find(node, names))
                target.bitmaps.insert_or_assign(name, std::move(bytes));
        }
    }

    void ReadMarker(const Element& element, const OvxStringT& name)
    {
        MarkerDefinition marker;
        marker.contour = ParsePathData(element.Svg("d"));
        marker.viewBox = ParseViewBox(element.Svg("viewBox")).value_or(BoundsOf(marker.contour));
        if (!marker.contour.empty() && marker.viewBox.width > 0 && marker.viewBox.height > 0)
            target.markers.insert_or_assign(name, std::move(marker));
    }

    XmlNames& names;
    PackagePictures& pictures;
    Definitions& target;
};

} // namespace

void ReadDefinitions(pugi::xml_node root, XmlNames& names, PackagePictures& pictures, Definitions& target)
{
    DefinitionSorter sorter(names, pictures, target);
    for (const pugi::xml_node container : root.children())
    {
        const XmlNames::Scope scope(names, container);
        if (names.Of(container) != XmlName{Odf::kOffice, "styles"})
            continue;
        for (const pugi::xml_node definition : container.children())
            sorter.Read(definition);
    }
}

} // namespace ReferenceHost
