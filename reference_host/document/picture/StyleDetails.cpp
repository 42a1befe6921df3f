#include "reference_host/document/picture/StyleDetails.h"

#include "reference_host/document/Measures.h"
#include "reference_host/document/OdfNamespaces.h"

#include <algorithm>
#include <array>
#include <utility>

namespace ReferenceHost
{

namespace
{

/// How many styles are climbed: cycles of parents end here.
constexpr int kMostParents = 256;

constexpr std::array<XmlName, 17> kAttributes{{{Odf::kFo, "padding"},
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
                                               {Odf::kDraw, "marker-end-center"}}};

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

} // namespace

void StyleDetails::AddStyles(pugi::xml_node root, XmlNames& names)
{
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
    if ((!isDefault && name != XmlName{Odf::kStyle, "style"}) ||
        names.Attribute(style, {Odf::kStyle, "family"}) != "graphic")
        return;
    Record record;
    record.parent = names.Attribute(style, {Odf::kStyle, "parent-style-name"});
    for (const pugi::xml_node element : style.children())
    {
        const XmlNames::Scope elementScope(names, element);
        if (names.Of(element) != XmlName{Odf::kStyle, "graphic-properties"})
            continue;
        for (const XmlName& attribute : kAttributes)
        {
            if (names.HasAttribute(element, attribute))
                record.attributes.emplace(attribute.local, names.Attribute(element, attribute));
        }
    }
    if (isDefault)
        defaults.merge(record.attributes);
    else
        records.emplace(names.Attribute(style, {Odf::kStyle, "name"}), std::move(record));
}

std::string_view StyleDetails::Look(std::string_view styleName, std::string_view attribute) const
{
    std::string_view name = styleName;
    for (int climbed = 0; climbed < kMostParents; ++climbed)
    {
        const auto record = records.find(name);
        if (record == records.end())
            break;
        const auto found = record->second.attributes.find(attribute);
        if (found != record->second.attributes.end())
            return found->second;
        name = record->second.parent;
    }
    const auto found = defaults.find(attribute);
    return found == defaults.end() ? std::string_view() : found->second;
}

ShapeDetails StyleDetails::Find(std::string_view styleName) const
{
    const auto look = [&](std::string_view attribute) { return Look(styleName, attribute); };
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
    details.isFillingHatches = look("fill-hatch-solid") == "true";
    details.bitmapFit = FitOf(look("repeat"));
    details.bitmapSize = {LengthOf(look("fill-image-width")), LengthOf(look("fill-image-height"))};
    details.startArrowWidth = LengthOf(look("marker-start-width"));
    details.endArrowWidth = LengthOf(look("marker-end-width"));
    details.isStartArrowCentred = look("marker-start-center") == "true";
    details.isEndArrowCentred = look("marker-end-center") == "true";
    return details;
}

} // namespace ReferenceHost
