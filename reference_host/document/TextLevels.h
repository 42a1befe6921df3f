#pragma once

#include "reference_host/document/AutomaticStyleEdits.h"
#include "reference_host/document/SavingContext.h"
#include "reference_host/document/StyleRecord.h"

#include "host/style_model/Style.h"
#include "host/utils/Any.h"

#include <pugixml.hpp>

#include <cstddef>
#include <string>
#include <vector>

namespace ReferenceHost
{

/// One of the nested places around a text that may refer to a style: the shape, for its graphic style and for
/// its text style, a paragraph, a span.
struct TextLevel
{
    static constexpr std::size_t kOutermost = static_cast<std::size_t>(-1);

    StyleReference reference;
    std::size_t outer = kOutermost;         ///< The place of the level around this one.
    const StyleRecord* automatic = nullptr; ///< The automatic style; null without one.
    std::vector<const StyleRecord*> named;  ///< What it inherits from, nearest first; not for graphic styles.
    bool isRepeated = false;                ///< It repeats the shape's text style, and adds nothing.
    PropertyValues changes;                 ///< What the automatic style shall say.
};

/// A run or a paragraph, or a shape without text: what is to look as the model says.
struct TextLeaf
{
    std::size_t level = 0;  ///< The innermost level that applies to it.
    PropertyValues wanted;  ///< Its own values: those that concern its kind.
    PropertyValues wrapped; ///< What a new span round it shall set, because its level cannot.
};

/// Decides for the text of one shape, property by property, which levels say what, so that each leaf ends up
/// with the values wanted: a level drops what some leaf below it does not have, and says what all leaves
/// directly in it agree on; where they do not, leaves are wrapped.
class TextLevels
{
public:
    /// `inherited` gives the values that the text inherits: a whole style without own values. Both borrowed.
    TextLevels(const SavingContext& savingContext, const Styles::Style& inherited);

    /// Adds a level behind the one around it.
    ///
    /// @returns its place.
    std::size_t AddLevel(const StyleReference& reference, std::size_t outer);

    [[nodiscard]] std::vector<TextLevel>& GetLevels() noexcept { return levels; }

    /// What a leaf at a level would have.
    [[nodiscard]] OvxUtils::Any Evaluate(std::size_t level, std::size_t row) const;

    /// All that a leaf at a level would have of the properties in `element`.
    [[nodiscard]] PropertyValues EvaluateAll(std::size_t level, PropertyElement element) const;

    /// Decides about one property. `ofShape` is what the shape itself sets; null when that is unchanged.
    void Settle(std::size_t row, std::vector<TextLeaf>& leaves, const PropertyValues* ofShape);

    /// Tells whether any level has changes.
    [[nodiscard]] bool HasChanges() const;

    /// Takes back all changes, and lets repeated levels count.
    void StartAgain(std::vector<TextLeaf>& leaves);

private:
    void TakeUnreachable(std::size_t row, std::vector<TextLeaf>& leaves);
    [[nodiscard]] std::vector<bool> FindClosed(std::size_t row, const std::vector<TextLeaf>& leaves) const;
    void SettleShape(std::size_t row, bool isClosed, const PropertyValues* ofShape);
    void SettleLeaves(std::size_t row, std::size_t level, bool isClosed, const std::vector<TextLeaf*>& own);

    const SavingContext& context;
    const Styles::Style& inheritance;
    std::vector<TextLevel> levels;
};

} // namespace ReferenceHost
