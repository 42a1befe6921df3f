#include "reference_host/document/picture/StyleDetails.h"

#include "reference_host/document/Measures.h"
#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/PropertyCodecs.h"
#include "reference_host/document/StyleNames.h"
#include "reference_host/document/picture/NumberScanner.h"

#include "host/utils/Utf8.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

namespace ReferenceHost
{

namespace
{

/// How many styles are climbed: cycles of parents end here.
constexpr int kMostParents = 256;

constexpr std::array<XmlName, 35> kAttributes{{{Odf::kFo, "padding"},
                                               {Odf::kFo, "padding-left"},
                                               {Odf::kFo, "padding-top"},
                                               {Odf::kFo, "padding-right"},
                                               {Odf::kFo, "padding-bottom"},
                                               {Odf::kFo, "wrap-option"},
                                               {Odf::kDraw, "textarea-vertical-align"},
                                               {Odf::kDraw, "textarea-horizontal-align"},
                                               {Odf::kDraw, "auto-grow-width"},
                                               {Odf::kDraw, "fill-hatch-solid"},
                                               {Odf::kDraw, "fill-image-width"},
                                               {Odf::kDraw, "fill-image-height"},
                                               {Odf::kStyle, "repeat"},
                                               {Odf::kDraw, "marker-start-width"},
                                               {Odf::kDraw, "marker-end-width"},
                                               {Odf::kDraw, "marker-start-center"},
                                               {Odf::kDraw, "marker-end-center"},
                                               {Odf::kDraw, "fill-image-ref-point"},
                                               {Odf::kDraw, "gradient-step-count"},
                                               {Odf::kDraw, "opacity-name"},
                                               {Odf::kDraw, "shadow"},
                                               {Odf::kDraw, "shadow-offset-x"},
                                               {Odf::kDraw, "shadow-offset-y"},
                                               {Odf::kDraw, "shadow-color"},
                                               {Odf::kDraw, "shadow-opacity"},
                                               {Odf::kDraw, "line-distance"},
                                               {Odf::kDraw, "guide-overhang"},
                                               {Odf::kDraw, "guide-distance"},
                                               {Odf::kDraw, "fill"},
                                               {Odf::kDraw, "fill-color"},
                                               {Odf::kDraw, "fill-gradient-name"},
                                               {Odf::kDraw, "fill-hatch-name"},
                                               {Odf::kDraw, "fill-image-name"},
                                               {Odf::kDraw, "opacity"},
                                               {Odf::kDraw, "background-size"}}};

constexpr std::string_view kGraphic = "graphic";
constexpr std::string_view kPage = "drawing-page";

/// Styles of the two families may share their names.
std::string KeyOf(std::string_view family, std::string_view name)
{
    return std::string(family) + ' ' + std::string(name);
}

double LengthOf(std::string_view text)
{
    return ParseLength(text).value_or(0);
}

ShapeDetails::VerticalAlign VerticalOf(std::string_view text)
{
    if (text == "middle" || text == "justify")
        return ShapeDetails::VerticalAlign::Middle;
    return text == "bottom" ? ShapeDetails::VerticalAlign::Bottom : ShapeDetails::VerticalAlign::Top;
}

ShapeDetails::HorizontalAlign HorizontalOf(std::string_view text)
{
    constexpr std::array<std::pair<std::string_view, ShapeDetails::HorizontalAlign>, 3> aligns{
        {{"left", ShapeDetails::HorizontalAlign::Left},
         {"center", ShapeDetails::HorizontalAlign::Centre},
         {"right", ShapeDetails::HorizontalAlign::Right}}};
    for (const auto& [name, align] : aligns)
    {
        if (name == text)
            return align;
    }
    return ShapeDetails::HorizontalAlign::AsParagraph;
}

ShapeDetails::BitmapFit FitOf(std::string_view text)
{
    if (text == "stretch")
        return ShapeDetails::BitmapFit::Stretch;
    return text == "no-repeat" ? ShapeDetails::BitmapFit::Once : ShapeDetails::BitmapFit::Tile;
}

/// "top-left" to "bottom-right", with "left" and "top" standing for the middle of that side.
Point AnchorOf(std::string_view text)
{
    const auto share = [&](std::string_view start, std::string_view end)
    {
        if (text.find(start) != std::string_view::npos)
            return 0.0;
        return text.find(end) != std::string_view::npos ? 1.0 : 0.5;
    };
    return {share("left", "right"), share("top", "bottom")};
}

/// The percentage that is not opaque.
int TransparencyOf(std::string_view opacity)
{
    return 100 - static_cast<int>(std::lround(std::clamp(ParsePercent(opacity).value_or(100), 0.0, 100.0)));
}

PageBackground::Kind KindOf(std::string_view text)
{
    using Kind = PageBackground::Kind;
    constexpr std::array<std::pair<std::string_view, Kind>, 4> kinds{{{"solid", Kind::Solid},
                                                                      {"gradient", Kind::Gradient},
                                                                      {"hatch", Kind::Hatch},
                                                                      {"bitmap", Kind::Bitmap}}};
    const auto* const found = std::ranges::find(kinds, text, &std::pair<std::string_view, Kind>::first);
    return found == kinds.end() ? Kind::None : found->second;
}

/// What belongs to the fill alone. `look` finds an attribute by its local name.
template <class Look>
void ReadFill(const Look& look, ShapeDetails& details)
{
    details.isFillingHatches = look("fill-hatch-solid") == "true";
    details.bitmapFit = FitOf(look("repeat"));
    details.bitmapSize = {LengthOf(look("fill-image-width")), LengthOf(look("fill-image-height"))};
    details.bitmapAnchor = AnchorOf(look("fill-image-ref-point"));
    constexpr double kMostSteps = 256;
    details.gradientSteps = static_cast<int>(
        std::clamp(NumberScanner(look("gradient-step-count")).TakeNumber().value_or(0), 0.0, kMostSteps));
    details.opacity = OvxUtils::FromUtf8(look("opacity-name"));
}

} // namespace

void StyleDetails::AddStyles(pugi::xml_node root, XmlNames& names)
{
    known.clear();
    for (const pugi::xml_node container : root.children())
    {
        const XmlNames::Scope scope(names, container);
        const XmlName name = names.Of(container);
        if (name != XmlName{Odf::kOffice, "styles"} && name != XmlName{Odf::kOffice, "automatic-styles"})
            continue;
        for (const pugi::xml_node style : container.children())
            AddStyle(style, names);
    }
}

void StyleDetails::AddStyle(pugi::xml_node style, XmlNames& names)
{
    const XmlNames::Scope scope(names, style);
    const XmlName name = names.Of(style);
    const bool isDefault = name == XmlName{Odf::kStyle, "default-style"};
    const std::string_view family = names.Attribute(style, {Odf::kStyle, "family"});
    if ((!isDefault && name != XmlName{Odf::kStyle, "style"}) || (family != kGraphic && family != kPage))
        return;
    Record record;
    record.parent = names.Attribute(style, {Odf::kStyle, "parent-style-name"});
    for (const pugi::xml_node element : style.children())
    {
        const XmlNames::Scope elementScope(names, element);
        const XmlName kind = names.Of(element);
        if (kind != XmlName{Odf::kStyle, "graphic-properties"} &&
            kind != XmlName{Odf::kStyle, "drawing-page-properties"})
            continue;
        for (const pugi::xml_attribute attribute : element.attributes())
        {
            const auto* const wanted = std::ranges::find(kAttributes, names.Of(attribute));
            if (wanted != kAttributes.end())
                record.attributes.emplace(wanted->local, attribute.value());
        }
    }
    if (!isDefault)
        records.emplace(KeyOf(family, names.Attribute(style, {Odf::kStyle, "name"})), std::move(record));
    else if (family == kGraphic)
        defaults.merge(record.attributes);
}

std::string_view StyleDetails::Look(std::string_view family, std::string_view styleName,
                                    std::string_view attribute) const
{
    std::string name(styleName);
    for (int climbed = 0; climbed < kMostParents; ++climbed)
    {
        const auto record = records.find(KeyOf(family, name));
        if (record == records.end())
            break;
        const auto found = record->second.attributes.find(attribute);
        if (found != record->second.attributes.end())
            return found->second;
        name = record->second.parent;
    }
    const auto found = defaults.find(attribute);
    return found == defaults.end() || family != kGraphic ? std::string_view() : found->second;
}

PageBackground StyleDetails::FindBackground(std::string_view styleName) const
{
    const auto look = [&](std::string_view attribute) { return Look(kPage, styleName, attribute); };
    PageBackground background;
    background.kind = KindOf(look("fill"));
    background.colour = ParseColour(look("fill-color")).value_or(CLR_COLORSPEC::Rgb{255, 255, 255});
    background.transparency = TransparencyOf(look("opacity"));
    using Kind = PageBackground::Kind;
    if (background.kind == Kind::Gradient)
        background.definition = DecodeStyleName(look("fill-gradient-name"));
    else if (background.kind == Kind::Hatch)
        background.definition = DecodeStyleName(look("fill-hatch-name"));
    else if (background.kind == Kind::Bitmap)
        background.definition = DecodeStyleName(look("fill-image-name"));
    background.isWholePage = look("background-size") == "full";
    ReadFill(look, background.details);
    return background;
}

const ShapeDetails& StyleDetails::Find(std::string_view styleName)
{
    const auto found = known.find(styleName);
    return found != known.end() ? found->second : known.emplace(styleName, Read(styleName)).first->second;
}

ShapeDetails StyleDetails::Read(std::string_view styleName) const
{
    const auto look = [&](std::string_view attribute) { return Look(kGraphic, styleName, attribute); };
    const auto padding = [&](std::string_view side)
    {
        const std::string_view own = look(side);
        return LengthOf(own.empty() ? look("padding") : own);
    };
    ShapeDetails details;
    details.paddingLeft = padding("padding-left");
    details.paddingTop = padding("padding-top");
    details.paddingRight = padding("padding-right");
    details.paddingBottom = padding("padding-bottom");
    details.vertical = VerticalOf(look("textarea-vertical-align"));
    details.horizontal = HorizontalOf(look("textarea-horizontal-align"));
    // What grows with its text has the width that the text needs, perhaps in another font than ours.
    const std::string_view wrap = look("wrap-option");
    details.isWrapped = wrap.empty() ? look("auto-grow-width") != "true" : wrap != "no-wrap";
    ReadFill(look, details);
    details.startArrowWidth = LengthOf(look("marker-start-width"));
    details.endArrowWidth = LengthOf(look("marker-end-width"));
    details.isStartArrowCentred = look("marker-start-center") == "true";
    details.isEndArrowCentred = look("marker-end-center") == "true";
    if (look("shadow") == "visible")
    {
        details.shadow = ShapeDetails::Shadow{
            {LengthOf(look("shadow-offset-x")), LengthOf(look("shadow-offset-y"))},
            ParseColour(look("shadow-color")).value_or(CLR_COLORSPEC::Rgb{0x80, 0x80, 0x80}),
            TransparencyOf(look("shadow-opacity"))};
    }
    const auto distance = [&](std::string_view attribute, double& target)
    {
        if (const std::optional<int> length = ParseLength(look(attribute)))
            target = *length;
    };
    distance("line-distance", details.measureDistance);
    distance("guide-overhang", details.guideOverhang);
    distance("guide-distance", details.guideGap);
    return details;
}

} // namespace ReferenceHost
