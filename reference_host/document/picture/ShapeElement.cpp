#include "reference_host/document/picture/ShapeElement.h"

#include "reference_host/document/Measures.h"
#include "reference_host/document/OdfNamespaces.h"

namespace ReferenceHost
{

std::string_view ShapeElement::Draw(std::string_view local) const
{
    return names.Attribute(node, {Odf::kDraw, local});
}

std::string_view ShapeElement::Svg(std::string_view local) const
{
    return names.Attribute(node, {Odf::kSvg, local});
}

double ShapeElement::Length(std::string_view local) const
{
    return ParseLength(Svg(local)).value_or(0);
}

double ShapeElement::DrawLength(std::string_view local) const
{
    return ParseLength(Draw(local)).value_or(0);
}

bool ShapeElement::HasSvg(std::string_view local) const
{
    return names.HasAttribute(node, {Odf::kSvg, local});
}

Box ShapeElement::ReadBox() const
{
    return {Length("x"), Length("y"), Length("width"), Length("height")};
}

} // namespace ReferenceHost
