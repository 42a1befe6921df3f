#include "reference_host/document/TextUnit.h"

#include "reference_host/document/CascadeStyles.h"

namespace ReferenceHost
{

TextUnit::TextUnit(Kind itsKind, DrawingObject& itsObject, std::size_t itsParagraph, CascadeStyles& itsStyles,
                   std::size_t itsCascade)
    : object(&itsObject), styles(&itsStyles), cascade(itsCascade), paragraph(itsParagraph), kind(itsKind)
{
}

Styles::Style* TextUnit::GetStyle()
{
    if (style == nullptr)
        style = styles->MakeFor({object, this}, cascade);
    return style.get();
}

const Styles::Style* TextUnit::GetStyleToRead() const
{
    return style != nullptr ? style.get() : &styles->GetPrototype(cascade);
}

} // namespace ReferenceHost
