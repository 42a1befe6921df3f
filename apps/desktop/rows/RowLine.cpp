#include "apps/desktop/rows/RowLine.h"

#include "apps/desktop/WindowText.h"
#include "apps/desktop/rows/MenuOpener.h"
#include "apps/desktop/rows/NumberControl.h"
#include "apps/desktop/rows/RowLabel.h"
#include "apps/desktop/rows/RowMenu.h"
#include "apps/desktop/rows/StateIcon.h"
#include "apps/desktop/rows/UndoPassage.h"

#include <QGridLayout>
#include <QMenu>
#include <QToolButton>

namespace Desktop
{

RowLine::RowLine(Document& itsDocument, const Workbench::RowPlace& itsPlace, QGridLayout& grid,
                 QWidget* parent)
    : QObject(parent), document(itsDocument), place(itsPlace)
{
    MakeIcon(parent);
    MakeControl(parent);
    MakeLabel(parent);
    const int line = grid.rowCount();
    grid.addWidget(icon, line, 0);
    grid.addWidget(label, line, 1);
    grid.addWidget(control, line, 2);
    QWidget::setTabOrder(icon, control);
    for (QWidget* const each :
         {static_cast<QWidget*>(icon), static_cast<QWidget*>(label), static_cast<QWidget*>(control)})
        OpenMenuFrom(*each, *menu);
}

int RowLine::GetLabelWidth() const
{
    return label->sizeHint().width();
}

void RowLine::ShowRow(const Workbench::RowReport& row, bool hasTargets)
{
    icon->setIcon(MakeStateIcon(row.image));
    const QString tooltip = ToQString(row.tooltip);
    const QString origin = row.origin.kind == Workbench::RowOrigin::Kind::Style
                               ? QLatin1Char('\n') + TextOf(L"origin.style", ToQString(row.origin.style))
                               : QString();
    icon->setToolTip(tooltip + origin);
    icon->setAccessibleName(NameForReaders() + QLatin1String(": ") + tooltip);
    control->ShowRow(row);
    for (QWidget* const each :
         {static_cast<QWidget*>(icon), static_cast<QWidget*>(label), static_cast<QWidget*>(control)})
        each->setEnabled(hasTargets);
}

void RowLine::MakeIcon(QWidget* parent)
{
    icon = new QToolButton(parent);
    icon->setObjectName(ToQString(place.GetName() + L".state"));
    icon->setAutoRaise(true);
    icon->setFocusPolicy(Qt::TabFocus);
    icon->setPopupMode(QToolButton::InstantPopup);
    // The arrow of the menu would take more room than the picture.
    icon->setStyleSheet(QStringLiteral("QToolButton::menu-indicator { image: none; }"));
    menu = new QMenu(icon);
    icon->setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this,
            [this]
            {
                menu->clear();
                FillRowMenu(*menu, document, place);
            });
}

void RowLine::MakeControl(QWidget* parent)
{
    const auto offerPalette = [this] { return document.GetSession().GetDrawing().GetPalette(); };
    const auto offerNames = [this]
    {
        return document.GetSession().GetStyles().DefinedNames(place.panel->GetDescription(), *place.row,
                                                              document.GetEditor().GetSelection());
    };
    control = MakeRowControl(*place.row, {offerPalette, offerNames}, parent);
    control->setObjectName(ToQString(place.GetName()));
    control->focusProxy()->setAccessibleName(NameForReaders());
    PassUndoKeys(*control);
    connect(control, &RowControl::committed, this,
            [this](const QString& value)
            { document.Edit([&](Workbench::Editor& editor) { Write(editor, value); }); });
    connect(control, &RowControl::dragBegan, &document, &Document::BeginDrag);
    connect(control, &RowControl::dragged, this,
            [this](const QString& value)
            { document.Drag([&](Workbench::Editor& editor) { Write(editor, value); }); });
    connect(control, &RowControl::dragEnded, &document, &Document::EndDrag);
}

void RowLine::MakeLabel(QWidget* parent)
{
    label = new RowLabel(TextOf(place.row->label), parent);
    label->setObjectName(ToQString(place.GetName() + L".label"));
    if (auto* const number = dynamic_cast<NumberControl*>(control))
        MakeDraggable(*number);
}

void RowLine::MakeDraggable(NumberControl& number)
{
    label->SetDraggable();
    connect(label, &RowLabel::dragBegan, this,
            [this, &number]
            {
                dragStart = number.GetNumber();
                document.BeginDrag();
            });
    connect(label, &RowLabel::dragMoved, this,
            [this, &number](int pixels)
            {
                const QString value = number.DragFrom(dragStart, pixels);
                document.Drag([&](Workbench::Editor& editor) { Write(editor, value); });
            });
    connect(label, &RowLabel::dragEnded, &document, &Document::EndDrag);
}

/// Several panels have a row of the same label, and who hears only this should know which it is.
QString RowLine::NameForReaders() const
{
    return TextOf(place.panel->GetDescription().title) + QLatin1String(", ") + TextOf(place.row->label);
}

void RowLine::Write(Workbench::Editor& editor, const QString& value) const
{
    editor.Set({{place.GetName(), FromQString(value)}});
}

} // namespace Desktop
