#pragma once

#include "datasource/BaseStylePropertiesDatasource.h"
#include "host/style_model/PropertyPath.h"
#include "host/style_model/Style.h"
#include "host/utils/Any.h"
#include "host/utils/OvxStringT.h"
#include "host/utils/OvxStringViewT.h"
#include "panels/ValueOrigin.h"

#include <deque>
#include <optional>
#include <span>

namespace Panels
{

/// One row of a panel, as its module writes it down. The texts are constants of the module.
struct PanelRow
{
    OvxStringViewT property;   ///< The bound name of the row's value: "FillColor".
    OvxStringViewT identifier; ///< The path of its property within the category, keys joined by ".": "color".
};

/// The base of panels whose rows are a table: each row becomes a handful of bound names.
///
/// For a row whose property is N, these names are bound, in this order, all of them to be read only:
///
/// | name           | type       | what it answers, over all targets                                     |
/// |----------------|------------|-----------------------------------------------------------------------|
/// | "N"            | Any        | the value they share; empty when ambiguous or when nothing sets one   |
/// | "NState"       | int        | the ActivePropertyState of the row's identifier                       |
/// | "NAmbiguous"   | int, 0/1   | whether they differ in the value                                      |
/// | "NOrigin"      | OvxStringT | DescribeOrigin() of where it comes from; empty where they differ in it |
/// | "NLink"        | OvxStringT | the palette entry that a colour refers to; empty without one and      |
/// |                |            | where they differ in it                                               |
/// | "NParentValue" | Any        | the value they would share without their own; empty where they differ |
///
/// Value and origin are two answers: targets may agree in one and differ in the other. A value that is
/// missing beside one that is present is a difference, whichever comes first, and so is a forced path; one
/// target alone differs from nothing, whatever is forced. Null targets are passed over, and without targets
/// everything is empty, the state is None, and only what is forced is ambiguous.
///
/// Reading never writes, and costs one walk over the targets for each name.
class PanelDatasource : public BaseStylePropertiesDatasource
{
protected:
    PanelDatasource() = default;

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

private:
    struct Row
    {
        OvxStringT identifier;
        Styles::PropertyPath path;
    };

    template <class T>
    void BindAnswer(OvxStringViewT name, T (PanelDatasource::*answer)(const Row&) const, const Row& row);

    template <class T, class Reader>
    [[nodiscard]] std::optional<T> FindShared(const Reader& read) const;

    [[nodiscard]] bool IsForced(const Row& row) const;
    [[nodiscard]] std::optional<OvxUtils::Any> FindSharedValue(const Row& row) const;
    [[nodiscard]] OvxUtils::Any GetValue(const Row& row) const;
    [[nodiscard]] int GetState(const Row& row) const;
    [[nodiscard]] int GetAmbiguous(const Row& row) const;
    [[nodiscard]] OvxStringT GetOrigin(const Row& row) const;
    [[nodiscard]] OvxStringT GetLink(const Row& row) const;
    [[nodiscard]] OvxUtils::Any GetParentValue(const Row& row) const;

    /// In order of registration. The bound names refer to them, so that they keep their addresses.
    std::deque<Row> rows;
};

} // namespace Panels
