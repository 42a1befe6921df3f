#include "host/style_model/Style.h"
#include "reference_host/style_model/StyleData.h"
#include "reference_host/style_model/StyleResolution.h"

#include <optional>
#include <vector>

// Copying values from one style to another: SetProperties. Structure stays: where values go away, the
// substyle that held them is emptied and not removed, and none is made only to stay empty.
namespace Styles
{

namespace
{

using ReferenceHost::Descend;
using ReferenceHost::Names;

void ClearValues(Style& style)
{
    StyleData& data = StyleData::Of(style);
    data.StoreAll({});
    for (const OwnSubstyle& substyle : data.substyles)
        ClearValues(*substyle.style);
}

/// Makes the own values of `destination` equal to those of `source`, at every depth.
void CopyValues(Style& destination, const Style& source)
{
    StyleData& to = StyleData::Of(destination);
    const StyleData& from = StyleData::Of(source);
    to.StoreAll(from.properties);
    for (const OwnSubstyle& substyle : to.substyles)
    {
        if (from.FindSubstyle(substyle.key) == nullptr)
            ClearValues(*substyle.style);
    }
    for (const OwnSubstyle& substyle : from.substyles)
    {
        Style* existing = to.FindSubstyle(substyle.key);
        if (existing == nullptr && StyleData::Of(*substyle.style).HasValues())
            existing =
                destination.GetSubstyleAndCreateIfMissing(substyle.key, substyle.style->GetCategoryName());
        if (existing != nullptr)
            CopyValues(*existing, *substyle.style);
    }
}

/// The style of `destination` at `names`, made with the categories that `source` has on the way; `source` has
/// them all.
Style& NeedPlace(Style& destination, const Style& source, Names names)
{
    Style* to = &destination;
    const Style* from = &source;
    for (const PropertyKey& name : names)
    {
        from = StyleData::Of(*from).FindSubstyle(name);
        to = to->GetSubstyleAndCreateIfMissing(name, from->GetCategoryName());
    }
    return *to;
}

void CopyProperty(Style& destination, const Style& source, Names names, const PropertyKey& key)
{
    const Style* from = Descend(&source, names);
    const OvxUtils::Any* value = from == nullptr ? nullptr : StyleData::Of(*from).FindOwn(key);
    if (value != nullptr)
        StyleData::Of(NeedPlace(destination, source, names)).Store(key, *value);
    else if (Style* to = Descend(&destination, names))
        StyleData::Of(*to).Store(key, OvxUtils::Any());
}

void CopySubstyle(Style& destination, const Style& source, Names path)
{
    const Style* from = Descend(&source, path);
    if (from != nullptr && StyleData::Of(*from).HasValues())
        CopyValues(NeedPlace(destination, source, path), *from);
    else if (Style* to = Descend(&destination, path))
        ClearValues(*to);
}

} // namespace

void Style::SetProperties(const PropertyPaths& paths, const Style* source)
{
    if (source == nullptr || source == this)
        return;

    // Where one of the two lies within the other, writing must not change what is still to be read.
    const bool entangled = &ReferenceHost::OutermostOwner(*this) == &ReferenceHost::OutermostOwner(*source);
    const std::optional<Style> snapshot = entangled ? std::optional<Style>(*source) : std::nullopt;
    const Style& from = entangled ? *snapshot : *source;
    for (const PropertyPath& path : paths)
    {
        if (path.empty())
            continue;
        const Names all(path);
        CopyProperty(*this, from, all.first(all.size() - 1), path.back());
        CopySubstyle(*this, from, all);
    }
}

} // namespace Styles
