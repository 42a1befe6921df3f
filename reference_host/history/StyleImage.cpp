#include "reference_host/history/StyleImage.h"

#include <algorithm>
#include <utility>

namespace ReferenceHost
{

using Styles::OwnProperty;
using Styles::StyleData;

namespace
{

void TakeOver(StyleLink& link, StyleLink& other) noexcept
{
    if (link.Get() == nullptr && other.Get() == nullptr)
        return;
    link.Point(other.Get());
    other.Point(nullptr);
}

} // namespace

StyleImage::StyleImage(StyleData& imagedStyle)
    : style(&imagedStyle), category(imagedStyle.category), values(imagedStyle.properties)
{
    parent.Point(imagedStyle.GetParent());
    defaults.Point(imagedStyle.GetDefaults());
}

StyleImage::StyleImage(StyleImage&& other) noexcept
    : style(other.style), category(other.category), values(std::move(other.values))
{
    TakeOver(parent, other.parent);
    TakeOver(defaults, other.defaults);
}

StyleImage& StyleImage::operator=(StyleImage&& other) noexcept
{
    style = other.style;
    category = other.category;
    values = std::move(other.values);
    TakeOver(parent, other.parent);
    TakeOver(defaults, other.defaults);
    return *this;
}

const OvxUtils::Any* StyleImage::Find(const Styles::PropertyKey& key) const noexcept
{
    return values.Find(key);
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
    style->ExchangeValues(values);

    Styles::Style* const parentNow = style->GetParent();
    style->RestoreParent(parent.Get());
    parent.Point(parentNow);

    Styles::Style* const defaultsNow = style->GetDefaults();
    style->RestoreDefaults(defaults.Get());
    defaults.Point(defaultsNow);
}

} // namespace ReferenceHost
