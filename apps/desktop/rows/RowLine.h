#pragma once

#include "apps/desktop/Document.h"
#include "apps/workbench/Report.h"
#include "apps/workbench/RowPlace.h"

#include <QObject>

class QGridLayout;
class QMenu;
class QToolButton;

namespace Desktop
{

class NumberControl;
class RowControl;
class RowLabel;

/// One line of a panel: the icon of its state, which opens its menu, its label, and its control.
class RowLine final : public QObject
{
    Q_OBJECT

public:
    /// Puts the line behind those that the grid has. The document, and what `itsPlace` borrows, outlive it;
    /// the widgets belong to `parent`.
    RowLine(Document& itsDocument, const Workbench::RowPlace& itsPlace, QGridLayout& grid, QWidget* parent);

    void ShowRow(const Workbench::RowReport& row, bool hasTargets);

    /// How wide the label wants to be, in pixels.
    [[nodiscard]] int GetLabelWidth() const;

private:
    void MakeIcon(QWidget* parent);
    void MakeLabel(QWidget* parent);
    void MakeControl(QWidget* parent);
    void MakeDraggable(NumberControl& number);
    [[nodiscard]] QString NameForReaders() const;
    void Write(Workbench::Editor& editor, const QString& value) const;

    Document& document;
    Workbench::RowPlace place;
    QToolButton* icon = nullptr;
    QMenu* menu = nullptr;
    RowLabel* label = nullptr;
    RowControl* control = nullptr;
    double dragStart = 0; ///< The number where the drag of the label began.
};

} // namespace Desktop
