#include "reference_host/history/StyleImage.h"

#include <algorithm>
#include <utility>

namespace ReferenceHost
{

using Styles::OwnProperty;
using Styles::StyleData;

StyleImage::StyleImage(StyleData& imagedStyle)
    : style(&imagedStyle), category(imagedStyle.category), values(imagedStyle.properties)
{
    parent.Point(imagedStyle.GetParent());
    defaults.Point(imagedStyle.GetDefaults());
}

const OvxUtils::Any* StyleImage::Find(const Styles::PropertyKey& key) const noexcept
{
    const auto found = std::ranges::lower_bound(values, key, {}, &OwnProperty::key);
    return found != values.end() && found->key == key ? &found->value : nullptr;
}

bool StyleImage::DiffersFromNow() const
{
    return style->category != category || style->GetParent() != parent.Get() ||
           style->GetDefaults() != defaults.Get() ||
           !std::ranges::equal(style->properties, values,
                               [](const OwnProperty& left, const OwnProperty& right)
                               { return left.key == right.key && left.value == right.value; });
}

void StyleImage::Exchange()
{
    std::swap(style->category, category);
    style->properties.swap(values);

    Styles::Style* const parentNow = style->GetParent();
    style->RestoreParent(parent.Get());
    parent.Point(parentNow);

    Styles::Style* const defaultsNow = style->GetDefaults();
    style->RestoreDefaults(defaults.Get());
    defaults.Point(defaultsNow);
}

} // namespace ReferenceHost
