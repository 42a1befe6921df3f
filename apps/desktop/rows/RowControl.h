#pragma once

#include "apps/workbench/PanelDescription.h"
#include "apps/workbench/Report.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/document/Drawing.h"

#include <QString>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

namespace Desktop
{

/// What controls ask of the drawing when a person opens a list.
struct RowOffers
{
    std::function<std::vector<ReferenceHost::PaletteEntry>()> palette;    ///< Never empty.
    std::function<std::optional<std::vector<OvxStringT>>()> definedNames; ///< Never empty.
};

/// What a person changes the value of a row with. Shows values and never writes one itself: what is entered
/// is told in words as Workbench::Editor takes them.
class RowControl : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Shows what the targets have. Where they differ it says so, and holds none of their values.
    virtual void ShowRow(const Workbench::RowReport& row) = 0;

signals:
    /// A value was entered.
    void committed(const QString& value);

    /// A drag begins; committed() is not told until it ends.
    void dragBegan();

    /// The value while it is dragged.
    void dragged(const QString& value);

    /// The drag ends; without `commit` nothing of it is to stay.
    void dragEnded(bool commit);
};

/// Makes the control that a row asks for. `row` is borrowed and outlives it.
[[nodiscard]] RowControl* MakeRowControl(const Workbench::RowDescription& row, const RowOffers& offers,
                                         QWidget* parent);

/// What stands in a control instead of a value: that the targets differ, or that nothing sets one; empty
/// where there is a value.
[[nodiscard]] QString PlaceholderOf(const Workbench::RowReport& row);

} // namespace Desktop
