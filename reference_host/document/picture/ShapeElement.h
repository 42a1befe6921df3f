#pragma once

#include "reference_host/document/XmlNames.h"
#include "reference_host/document/picture/Geometry.h"

#include <pugixml.hpp>

#include <optional>
#include <string_view>

namespace ReferenceHost
{

/// The attributes of one shape, by what they mean. Borrows both; the scope of the element is in force.
class ShapeElement
{
public:
    ShapeElement(pugi::xml_node shape, XmlNames& xmlNames) : node(shape), names(xmlNames) {}

    [[nodiscard]] std::string_view Draw(std::string_view local) const;
    [[nodiscard]] std::string_view Svg(std::string_view local) const;

    /// A length below svg: in hundredths of a millimetre; 0 without it.
    [[nodiscard]] double Length(std::string_view local) const;

    /// A length below draw:, likewise.
    [[nodiscard]] double DrawLength(std::string_view local) const;

    [[nodiscard]] bool HasSvg(std::string_view local) const;

    /// The place that svg:x, svg:y, svg:width and svg:height give.
    [[nodiscard]] Box ReadBox() const;

    [[nodiscard]] pugi::xml_node GetNode() const noexcept { return node; }

    [[nodiscard]] XmlNames& GetNames() const noexcept { return names; }

private:
    pugi::xml_node node;
    XmlNames& names;
};

} // namespace ReferenceHost
