#pragma once

#include "apps/workbench/Change.h"
#include "apps/workbench/RowPlace.h"

#include <QDialog>

#include <vector>

namespace Desktop
{

/// Lists what is different from the file that was opened: of what, which row, from and to which value, and
/// the state now. Rows that had no value and have none are left out.
class ChangesDialog final : public QDialog
{
    Q_OBJECT

public:
    ChangesDialog(const std::vector<Workbench::Change>& changes, const Workbench::LoadedPanels& panels,
                  QWidget* parent);

private:
    void MakeList(const std::vector<Workbench::Change>& changes, const Workbench::LoadedPanels& panels);
};

} // namespace Desktop
