#pragma once

#include "reference_host/style_model/StyleData.h"
#include "reference_host/style_model/StyleLink.h"

#include <memory>
#include <vector>

namespace ReferenceHost
{

/// What may change of one style, as it was at one moment: some of its own values, or all of them and what it
/// inherits from. Substyles are styles of their own.
///
/// Most edits change one value of each of many styles, so that alone is kept for them.
class StyleImage
{
public:
    /// An image of nothing yet. `imagedStyle` is borrowed, and lives whenever the image is used.
    explicit StyleImage(Styles::StyleData& imagedStyle) noexcept : style(&imagedStyle) {}

    // Recording before it happens

    /// The own value of a property may change. What the image knows already stays as it is.
    void KeepValue(const Styles::PropertyKey& key);

    /// Anything may change. What the image knows already stays as it is.
    void KeepAll();

    /// Makes room for TakeOver().
    void MakeRoom(StyleImage& later);

    /// Adds what changed later of the same style: what is known already stays as it is. Leaves `later` to be
    /// destroyed.
    void TakeOver(StyleImage& later) noexcept;

    // Reading

    [[nodiscard]] Styles::StyleData& GetStyle() const noexcept { return *style; }

    /// The value of a property at that moment; null when the style did not set it.
    [[nodiscard]] const OvxUtils::Any* Find(const Styles::PropertyKey& key) const noexcept;

    /// The properties whose own values are not what they were, in order.
    [[nodiscard]] std::vector<Styles::PropertyKey> FindChangedKeys() const;

    /// Null without a parent, and when the parent is gone.
    [[nodiscard]] Styles::Style* GetParent() const noexcept
    {
        return whole == nullptr ? style->GetParent() : whole->parent.Get();
    }

    [[nodiscard]] bool DiffersFromNow() const;

    // Restoring

    /// Makes the style what it was; from then on the image is one of what it was until now.
    void Exchange();

private:
    struct KeptValue
    {
        Styles::PropertyKey key;
        OvxUtils::Any value; ///< Empty where the style did not set it.
    };

    /// All that there was.
    struct Whole
    {
        explicit Whole(const Styles::StyleData& style);

        Styles::PropertyKey category;
        Styles::OwnProperties values; ///< With as much room as the style had.
        StyleLink parent;
        StyleLink defaults;
    };

    [[nodiscard]] const KeptValue* FindKept(const Styles::PropertyKey& key) const noexcept;
    [[nodiscard]] bool IsChanged(const KeptValue& kept) const;

    Styles::StyleData* style;
    std::vector<KeptValue> values; ///< Of each property that may have changed; none beside `whole`.
    std::unique_ptr<Whole> whole;  ///< Null while nothing but `values` may have changed.
};

} // namespace ReferenceHost
