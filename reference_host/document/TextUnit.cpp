#include "reference_host/document/TextUnit.h"

#include "reference_host/document/CascadeStyles.h"

namespace ReferenceHost
{

TextUnit::TextUnit(Kind itsKind, DrawingObject& itsObject, CascadeStyles& itsStyles, std::size_t itsCascade)
    : object(&itsObject), styles(&itsStyles), cascade(itsCascade), kind(itsKind)
{
}

Styles::Style* TextUnit::GetStyle()
{
    if (style == nullptr)
        style = styles->Make(cascade);
    return style.get();
}

} // namespace ReferenceHost
