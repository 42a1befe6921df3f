#include "reference_host/document/DrawingObject.h"

#include "reference_host/document/CascadeStyles.h"
#include "reference_host/document/DrawingPage.h"

#include <string>

namespace ReferenceHost
{

DrawingObject::DrawingObject(DrawingPage& itsPage, DrawingObject* itsGroup, std::size_t itsPosition)
    : page(&itsPage), group(itsGroup), position(itsPosition)
{
}

DrawingObject::~DrawingObject() = default;

OvxStringT DrawingObject::GetId() const
{
    const OvxStringT outer = group == nullptr ? OvxStringT(std::to_wstring(page->number)) : group->GetId();
    return outer + (L"/" + std::to_wstring(position));
}

Styles::Style* DrawingObject::GetStyle()
{
    if (style == nullptr && styles != nullptr)
        style = styles->MakeFor({this, nullptr}, cascade);
    return style.get();
}

const Styles::Style* DrawingObject::GetStyleToRead() const
{
    return style != nullptr || styles == nullptr ? style.get() : &styles->GetPrototype(cascade);
}

} // namespace ReferenceHost
