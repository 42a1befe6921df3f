// Where things of the window stand: what of that is remembered, and how the keyboard and names get there.

#include "apps/desktop/MainWindow.h"
#include "apps/desktop/WindowMemory.h"
#include "apps/desktop/canvas/CanvasWidget.h"
#include "apps/desktop/sections/PanelStack.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QMenu>

#include <algorithm>
#include <vector>

namespace Desktop
{
namespace
{

const QString kPlace = QStringLiteral("windowPlace");
const QString kDocks = QStringLiteral("windowDocks");
const QString kClosedSections = QStringLiteral("closedSections");

bool TakesKeyboard(const QWidget& widget)
{
    return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0;
}

/// The first widget in the order of the keyboard that is the pane or in it; null when none takes it.
QWidget* FirstInPane(QWidget& pane)
{
    if (TakesKeyboard(pane))
        return &pane;
    for (QWidget* next = pane.nextInFocusChain(); next != &pane; next = next->nextInFocusChain())
    {
        if (pane.isAncestorOf(next) && TakesKeyboard(*next))
            return next;
    }
    return nullptr;
}

} // namespace

void MainWindow::RestoreLayout()
{
    remembersLayout = true;
    restoreGeometry(Recall(kPlace).toByteArray());
    restoreState(Recall(kDocks).toByteArray());
    panelStack->SetClosed(Recall(kClosedSections).toStringList());
}

void MainWindow::RememberLayout() const
{
    Remember(kPlace, saveGeometry());
    Remember(kDocks, saveState());
    Remember(kClosedSections, panelStack->GetClosed());
}

/// Moves the keyboard to the next of canvas, styles and panels that is shown, or to the one before.
void MainWindow::EnterPane(int by)
{
    std::vector<QWidget*> panes;
    for (QWidget* const pane : {static_cast<QWidget*>(canvas), editedDock->widget(), panelDock->widget()})
    {
        if (pane->isVisible())
            panes.push_back(pane);
    }
    const QWidget* const focused = QApplication::focusWidget();
    const auto current =
        std::find_if(panes.begin(), panes.end(),
                     [&](const QWidget* pane) { return pane == focused || pane->isAncestorOf(focused); });
    const auto count = static_cast<int>(panes.size());
    const int place = current == panes.end() ? 0 : static_cast<int>(current - panes.begin());
    QWidget& pane = *panes[static_cast<std::size_t>((place + by + count) % count)];
    if (QWidget* const first = FirstInPane(pane))
        first->setFocus(Qt::TabFocusReason);
    if (&pane == panelStack)
        panelStack->ensureVisible(0, 0);
}

bool MainWindow::OpenNamed(const QString& name)
{
    if (QAction* const action = findChild<QAction*>(name))
        return action->trigger(), true;
    auto* const widget = findChild<QWidget*>(name);
    if (widget == nullptr)
        return false;
    if (QMenu* const menu = widget->findChild<QMenu*>())
        return menu->popup(widget->mapToGlobal(widget->rect().bottomLeft())), true;
    auto* const list = widget->findChild<QComboBox*>();
    if (list != nullptr)
        list->showPopup();
    return list != nullptr;
}

} // namespace Desktop
