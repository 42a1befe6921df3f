#pragma once

#include "apps/workbench/PanelDescription.h"
#include "apps/workbench/Selection.h"
#include "datasource/BaseStylePropertiesDatasource.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/document/Drawing.h"
#include "reference_host/document/DrawingObject.h"
#include "reference_host/services/DocumentStylesSource.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace Workbench
{

/// What a panel holds after targets were handed in.
struct HandedTargets
{
    bool hasTargets = false;
    bool isDefaults = false; ///< The targets are the drawing's default styles.
    OvxStringT styleName;    ///< The first target's name in its sheet; empty for any but a named style.
};

/// A named style of a drawing, in words.
struct NamedStyleFacts
{
    OvxStringT name;
    OvxStringT displayName;
    OvxStringT sheet;  ///< The style sheet outside the drawing that holds it; empty for the drawing's own.
    OvxStringT parent; ///< The name of the style it inherits from; empty without one.
    OvxStringT parentSheet; ///< The sheet outside the drawing that holds that; empty for the drawing's own.
    OvxStringT category;    ///< "style" for a whole style.
    std::vector<OvxStringT>
        own;               ///< What it sets itself: category and keys joined by ".", in the order of letters.
    std::size_t users = 0; ///< How many objects have it as their named style.
    bool isExternal = false; ///< It comes from another file.
};

/// The border to the style model: the one place of the programs that touches styles.
///
/// What is selected goes to the panels as styles here, and what the programs tell about styles comes out as
/// words. Everything else about values goes by bound names. Borrows the drawing.
class TargetHandover
{
public:
    explicit TargetHandover(ReferenceHost::Drawing& openDrawing) : drawing(&openDrawing) {}

    /// Tells whether every drawing has a category, whatever panels there are.
    [[nodiscard]] static bool IsHostCategory(const OvxStringT& category);

    /// Tells whether a group of writes to default styles may be gathered by a panel of that category itself:
    /// a group lands in the same category whatever the panel, and in any other it would be misplaced.
    [[nodiscard]] static bool IsCategoryOfGroups(const OvxStringT& category);

    /// Makes a category of a panel's own known by its display name. For before a drawing is opened.
    static void RegisterCategory(const CategoryDescription& category);

    /// Hands a selection in to a panel: first the objects that own the targets, then the targets, whose
    /// arrival the panel announces.
    ///
    /// Of objects, what the panel's description asks for. A named style of one category is handed in to
    /// panels of that category only; the others get no targets.
    HandedTargets HandIn(BaseStylePropertiesDatasource& panel, const PanelDescription& description,
                         const Selection& selection) const;

    /// Tells a style source what is selected: the whole styles of objects, or a named style. The default
    /// styles count as nothing.
    void HandInAsSelected(ReferenceHost::DocumentStylesSource& source, const Selection& selection) const;

    /// Takes all targets from a panel.
    static void HandInNothing(BaseStylePropertiesDatasource& panel, const PanelDescription& description);

    /// Tells a style source what the presets are about that a panel offers, if it offers any.
    static void OfferPresets(ReferenceHost::DocumentStylesSource& source,
                             const BaseStylePropertiesDatasource& panel, const PanelDescription& description);

    /// What a value of a choice means; none for any other value.
    [[nodiscard]] static std::optional<OvxStringT> TextOfChoice(const OvxUtils::Any& value);

    /// The value of a choice that means `text`.
    [[nodiscard]] static OvxUtils::Any ChoiceOfText(const OvxStringT& text);

    /// What a row that holds the name of a gradient, hatch and so on may name in the file of what is
    /// selected: the drawing, or the style sheet of a style outside it. None for any other row.
    [[nodiscard]] std::optional<std::vector<OvxStringT>> DefinedNames(const PanelDescription& description,
                                                                      const RowDescription& row,
                                                                      const Selection& selection) const;

    /// The named styles that the targets of a panel inherit from directly, in the panel's category: each name
    /// once, in the order of the targets. Styles without a name are left out.
    [[nodiscard]] std::vector<OvxStringT> ParentsOfTargets(const BaseStylePropertiesDatasource& panel) const;

    /// The named style that each target of a panel inherits from directly, in the panel's category; empty for
    /// a target without, and where that has no name.
    [[nodiscard]] std::vector<OvxStringT>
    ParentOfEachTarget(const BaseStylePropertiesDatasource& panel) const;

    /// The names of the drawing's own named styles, in the order of the sheet.
    [[nodiscard]] const std::vector<OvxStringT>& GetStyleNames() const;

    /// The names by which styles of sheets outside the drawing can be meant, in the order of the sheets:
    /// those that the drawing has no style of itself.
    [[nodiscard]] std::vector<OvxStringT> GetExternalStyleNames() const;

    /// The style sheet outside the drawing that holds the style of that name; empty for a style of the
    /// drawing itself, and for an unknown name.
    [[nodiscard]] OvxStringT SheetOf(const OvxStringT& styleName) const;

    /// The style sheet outside the drawing that keeps a named style from being edited; empty for a style that
    /// may be, and for an unknown name.
    [[nodiscard]] OvxStringT ReadOnlySheetOf(const OvxStringT& styleName) const;

    /// The named style that an object inherits from; empty for a group and without one.
    [[nodiscard]] OvxStringT NamedStyleOf(ReferenceHost::DrawingObject& object) const;

    /// The names of the styles that a named style inherits from, nearest first; none for an unknown name.
    [[nodiscard]] std::vector<OvxStringT> AncestorsOf(const OvxStringT& styleName) const;

    /// The category of a named style, "style" for a whole style; empty for an unknown name.
    [[nodiscard]] OvxStringT CategoryOf(const OvxStringT& styleName) const;

    /// All named styles in the order of the sheet, and behind them those of the sheets outside the drawing.
    [[nodiscard]] std::vector<NamedStyleFacts> DescribeNamedStyles() const;

private:
    ReferenceHost::Drawing* drawing;
};

} // namespace Workbench
