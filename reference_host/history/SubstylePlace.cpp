#include "reference_host/history/SubstylePlace.h"

#include "reference_host/style_model/StyleData.h"

#include <algorithm>
#include <utility>

namespace ReferenceHost
{

using Styles::StyleData;

SubstylePlace::SubstylePlace(Styles::Style& itsOwner, const Styles::PropertyKey& itsKey,
                             std::unique_ptr<Styles::Style> standing)
    : owner(&itsOwner), key(itsKey), kept(std::move(standing))
{
    // What is kept is no part of the document: what is written to it meanwhile is nobody's change.
    if (kept != nullptr)
        StyleData::Of(*kept).LeaveOwner();
}

bool SubstylePlace::DiffersFromNow() const
{
    const Styles::Style* const standing = StyleData::Of(*owner).FindSubstyle(key);
    return (kept != nullptr && HasContent(*kept)) || (standing != nullptr && HasContent(*standing));
}

void SubstylePlace::Exchange()
{
    StyleData::Of(*owner).Exchange(*owner, key, kept);
}

bool HasContent(const Styles::Style& style)
{
    const StyleData& data = StyleData::Of(style);
    return !data.properties.empty() || data.GetParent() != nullptr ||
           std::ranges::any_of(data.substyles, [](const Styles::OwnSubstyle& substyle)
                               { return HasContent(*substyle.style); });
}

} // namespace ReferenceHost
