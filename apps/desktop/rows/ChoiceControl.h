#pragma once

#include "apps/desktop/rows/RowControl.h"

class QComboBox;

namespace Desktop
{

/// A list of the values that a row offers.
class ChoiceControl final : public RowControl
{
    Q_OBJECT

public:
    ChoiceControl(const Workbench::RowDescription& row, QWidget* parent);

    /// A value that is not among those that the row offers is shown as it is, and cannot be chosen.
    void ShowRow(const Workbench::RowReport& row) override;

private:
    QComboBox* list; ///< Owned by this.
};

} // namespace Desktop
