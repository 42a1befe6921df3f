#pragma once

#include "datasource/BaseStylePropertiesDatasource.h"
#include "host/style_model/PropertyPath.h"
#include "host/style_model/Style.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"
#include "host/utils/OvxStringViewT.h"
#include "host/utils/RepeatingCallback.h"
#include "panels/PanelRow.h"
#include "panels/PresetSubscription.h"
#include "panels/ValueOrigin.h"

#include <deque>
#include <optional>
#include <set>
#include <span>
#include <vector>

namespace Panels
{

/// The base of panels whose rows are a table: each row becomes a handful of bound names.
///
/// For a row whose property is N, these names are bound, in this order:
///
/// | name                    | type       | what it answers or does, over all targets                    |
/// |-------------------------|------------|--------------------------------------------------------------|
/// | "N"                     | Any        | the value they share; empty when ambiguous or when nothing   |
/// |                         |            | sets one; can be written                                     |
/// | "NState"                | int        | the ActivePropertyState of the row's identifier              |
/// | "NAmbiguous"            | int, 0/1   | whether they differ in the value                             |
/// | "NOrigin"               | OvxStringT | DescribeOrigin() of where it comes from; empty where they    |
/// |                         |            | differ in it                                                 |
/// | "NLink"                 | OvxStringT | the palette entry that a colour refers to; empty without one |
/// |                         |            | and where they differ in it                                  |
/// | "NParentValue"          | Any        | the value they would share without their own; empty where    |
/// |                         |            | they differ                                                  |
/// | "NApplyToParentEnable"  | int, 0/1   | whether the next one does anything                           |
/// | "NApplyToParent"        | command    | moves the value that they share and set into what they       |
/// |                         |            | inherit from, so that they look the same and inherit it      |
///
/// Value and origin are two answers: targets may agree in one and differ in the other. A value that is
/// missing beside one that is present is a difference, whichever comes first, and so is a forced path; one
/// target alone differs from nothing, whatever is forced. Null targets are passed over, and without targets
/// everything is empty, the state is None, and only what is forced is ambiguous.
///
/// Reading never writes, and costs one walk over the targets for each name.
///
/// A value that is written becomes the targets' own, also when it equals the inherited one; an empty one
/// takes their own away. A plain colour that looks like the palette colour which the targets share keeps
/// their link: only the break command ends it. Nothing is notified for a write; whoever owns the targets
/// hands them in anew.
///
/// A panel that names a preset category listens for changes of its presets, and announces "PresetList" then.
class PanelDatasource : public BaseStylePropertiesDatasource
{
public:
    using BaseStylePropertiesDatasource::SetTargetStyle;

    /// Takes new targets as the base does, and then notifies once, by their names joined, of every row and of
    /// every name of the base that depends on the targets.
    void SetTargetStyle(const std::vector<Styles::Style*>& styles, bool isDefault,
                        const Styles::PropertyPath& path,
                        const std::set<Styles::PropertyPath>& newForceAmbiguous) override;

protected:
    PanelDatasource() = default;

    /// Begins to listen for presets, after what the base does. Called once by the framework; an override
    /// calls it.
    void PostConstruct() override;

    /// Binds the names of `newRows`, row by row. For FillDataSourceMap() of the derived class, once.
    void RegisterRows(std::span<const PanelRow> newRows);

    /// What one target shows in a row. Called for each target, whenever a value is read.
    ///
    /// The base answers the effective value at `path`. An override that shows something else overrides the
    /// other two as well.
    ///
    /// @param categoryStyle the target's style of this panel's category.
    [[nodiscard]] virtual OvxUtils::Any ReadValue(Styles::Style& categoryStyle,
                                                  const Styles::PropertyPath& path) const;

    /// Where it comes from that `categoryStyle` shows what it shows.
    ///
    /// The base answers Local when DoesOverrideProperty() says so, and else the style that sets the value.
    [[nodiscard]] virtual ValueOrigin ReadOrigin(Styles::Style& categoryStyle,
                                                 const Styles::PropertyPath& path) const;

    /// What `categoryStyle` would show without a value of its own: the base answers FindInheritedValue().
    [[nodiscard]] virtual OvxUtils::Any ReadParentValue(Styles::Style& categoryStyle,
                                                        const Styles::PropertyPath& path) const;

    /// Writes a value to all targets. Called when a row's name is written.
    ///
    /// The base makes it the targets' own value at `path`, or resets the path for an empty value.
    virtual void WriteValue(const Styles::PropertyPath& path, const OvxUtils::Any& value);

    /// The style that a value of `categoryStyle` moves to when it is applied to the parent.
    ///
    /// The base answers the same as the library does for whole styles: the style's own parent, else the
    /// substyle of its category in its owner's parent.
    ///
    /// @returns null when there is none.
    [[nodiscard]] virtual Styles::Style* FindApplyDestination(const Styles::Style& categoryStyle) const;

private:
    struct Row
    {
        OvxStringT identifier;
        Styles::PropertyPath path;
    };

    void BindRow(OvxStringViewT property, const Row& row);
    void Announce(OvxStringViewT name);

    template <class T>
    void BindAnswer(OvxStringViewT name, T (PanelDatasource::*answer)(const Row&) const, const Row& row,
                    OvxUtils::RepeatingCallback<void(const T&)> setter = {});

    template <class T, class Reader>
    [[nodiscard]] std::optional<T> FindShared(const Reader& read) const;

    [[nodiscard]] std::optional<OvxUtils::Any> FindSharedValue(const Row& row) const;
    [[nodiscard]] OvxUtils::Any GetValue(const Row& row) const;
    [[nodiscard]] int GetState(const Row& row) const;
    [[nodiscard]] int GetAmbiguous(const Row& row) const;
    [[nodiscard]] OvxStringT GetOrigin(const Row& row) const;
    [[nodiscard]] OvxStringT GetLink(const Row& row) const;
    [[nodiscard]] OvxUtils::Any GetParentValue(const Row& row) const;
    [[nodiscard]] std::vector<Styles::Style*> FindApplyDestinations() const;
    [[nodiscard]] int GetRowApplyEnable(const Row& row) const;
    void ApplyRow(const Row& row);
    void SetValue(const Row& row, const OvxUtils::Any& value);

    /// In order of registration. The bound names refer to them, so that they keep their addresses.
    std::deque<Row> rows;

    /// The names that new targets are announced with, joined by commas.
    OvxStringT announcedNames;

    PresetSubscription presetSubscription;
};

} // namespace Panels
