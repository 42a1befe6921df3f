#pragma once

#include "apps/desktop/rows/RowControl.h"

class QCheckBox;

namespace Desktop
{

/// A box for a value that is off or on; half checked where it is neither.
class SwitchControl final : public RowControl
{
    Q_OBJECT

public:
    /// `itsRow` is borrowed and outlives this; the first of its two choices is off.
    SwitchControl(const Workbench::RowDescription& itsRow, QWidget* parent);

    void ShowRow(const Workbench::RowReport& row) override;

private:
    const Workbench::RowDescription& description;
    QCheckBox* box; ///< Owned by this.
};

} // namespace Desktop
