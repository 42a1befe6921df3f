#include "bench/bound_property/QtOutline.h"

#include "bench/bound_property/OutlineRow.h"

namespace Bench
{

QtOutline::QtOutline() : name(kOutlineRows[kWidthRow])
{
    const QMetaObject* const description = object.metaObject();
    property = description->property(description->indexOfProperty(name.constData()));
}

} // namespace Bench
