#pragma once

#include "reference_host/style_model/StyleData.h"
#include "reference_host/style_model/StyleLink.h"

namespace ReferenceHost
{

/// What one style set itself, and what it inherited from, at one moment. Substyles are styles of their own.
class StyleImage
{
public:
    /// Takes the image. `imagedStyle` is borrowed, and lives whenever the image is used.
    explicit StyleImage(Styles::StyleData& imagedStyle);

    StyleImage(StyleImage&& other) noexcept;
    StyleImage& operator=(StyleImage&& other) noexcept;
    ~StyleImage() = default;

    [[nodiscard]] Styles::StyleData& GetStyle() const noexcept { return *style; }

    [[nodiscard]] const Styles::OwnProperties& GetValues() const noexcept { return values; }

    /// The value of a property; null when the style did not set it.
    [[nodiscard]] const OvxUtils::Any* Find(const Styles::PropertyKey& key) const noexcept;

    /// Null without a parent, and when the parent is gone.
    [[nodiscard]] Styles::Style* GetParent() const noexcept { return parent.Get(); }

    [[nodiscard]] bool DiffersFromNow() const;

    /// Makes the style what it was; from then on the image is one of what it was until now.
    void Exchange();

private:
    Styles::StyleData* style;
    Styles::PropertyKey category;
    Styles::OwnProperties values;
    StyleLink parent;
    StyleLink defaults;
};

} // namespace ReferenceHost
