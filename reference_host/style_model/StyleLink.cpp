#include "reference_host/style_model/StyleLink.h"

#include "reference_host/style_model/StyleData.h"

namespace ReferenceHost
{

constinit std::uint64_t InheritanceVersion::version = 1;

void StyleLink::Point(Styles::Style* newTarget) noexcept
{
    if (target == newTarget)
        return;

    InheritanceVersion::Change();
    if (target != nullptr)
    {
        StyleLink*& place = previous != nullptr ? previous->next : Styles::StyleData::Of(*target).firstLink;
        place = next;
        if (next != nullptr)
            next->previous = previous;
    }

    target = newTarget;
    previous = nullptr;
    next = nullptr;
    if (target == nullptr)
        return;

    StyleLink*& first = Styles::StyleData::Of(*target).firstLink;
    next = first;
    if (next != nullptr)
        next->previous = this;
    first = this;
}

void StyleLink::ReleaseAll(StyleLink* first) noexcept
{
    if (first != nullptr)
        InheritanceVersion::Change();
    while (first != nullptr)
    {
        StyleLink* const released = first;
        first = first->next;
        released->target = nullptr;
        released->previous = nullptr;
        released->next = nullptr;
    }
}

} // namespace ReferenceHost
