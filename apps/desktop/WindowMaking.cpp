// How the window is put together: docks, menus and what listens to what.

#include "apps/desktop/EditedBox.h"
#include "apps/desktop/MainWindow.h"
#include "apps/desktop/WindowMemory.h"
#include "apps/desktop/WindowText.h"
#include "apps/desktop/canvas/CanvasWidget.h"
#include "apps/desktop/sections/PanelStack.h"
#include "reference_host/resources/Language.h"

#include <QAction>
#include <QActionGroup>
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QToolButton>

namespace Desktop
{

void MainWindow::MakeDocks()
{
    editedDock = new QDockWidget(TextOf(L"window.edited.title"), this);
    editedDock->setObjectName(QStringLiteral("edited"));
    editedDock->setWidget(new EditedBox(document, editedDock));
    addDockWidget(Qt::LeftDockWidgetArea, editedDock);
    panelDock = new QDockWidget(TextOf(L"window.panels.title"), this);
    panelDock->setObjectName(QStringLiteral("panels"));
    panelStack = new PanelStack(document, dialogs, panelDock);
    panelDock->setWidget(panelStack);
    addDockWidget(Qt::RightDockWidgetArea, panelDock);
    resizeDocks({editedDock, panelDock}, {240, 380}, Qt::Horizontal);
}

void MainWindow::MakeMenus()
{
    menuBar()->clear();
    qDeleteAll(menuBar()->findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly));
    MakeFileMenu();
    MakeEditMenu();
    MakeViewMenu();
}

void MainWindow::MakeFileMenu()
{
    QMenu& menu = *menuBar()->addMenu(TextOf(L"window.file"));
    AddAction(menu, L"window.file.open", QKeySequence::Open, [this] { AskForFile(); });
    recentMenu = menu.addMenu(TextOf(L"window.file.recent"));
    ShowRecentFiles();
    menu.addSeparator();
    AddAction(menu, L"window.file.save", QKeySequence::Save, [this] { Save(); });
    AddAction(menu, L"window.file.save-as", QKeySequence::SaveAs, [this] { SaveAs(); });
    QAction* const backup = AddAction(menu, L"window.file.backup", {}, [] {});
    backup->setCheckable(true);
    backup->setChecked(Recall(QStringLiteral("keepBackup")).toBool());
    document.SetKeepsBackup(backup->isChecked());
    connect(backup, &QAction::toggled, this, &MainWindow::KeepBackup);
    menu.addSeparator();
    AddAction(menu, L"window.file.quit", QKeySequence::Quit, [this] { close(); });
}

void MainWindow::MakeEditMenu()
{
    QMenu& menu = *menuBar()->addMenu(TextOf(L"window.edit"));
    undoAction = AddAction(menu, L"window.edit.undo", QKeySequence::Undo, [this] { document.Undo(); });
    redoAction = AddAction(menu, L"window.edit.redo", QKeySequence::Redo, [this] { document.Redo(); });
    menu.addSeparator();
    MakeSelectionEntries(menu);
    menu.addSeparator();
    AddAction(menu, L"window.edit.palette", {}, [this] { DefineColour(); });
    AddAction(menu, L"window.edit.changes", QKeySequence(QStringLiteral("F7")), [this] { ShowChanges(); });
}

void MainWindow::MakeSelectionEntries(QMenu& menu)
{
    AddAction(menu, L"window.edit.select-all", QKeySequence::SelectAll, [this] { document.Select(L"all"); });
    AddAction(menu, L"window.edit.select", QKeySequence::Find, [this] { AskForSelection(); });
    AddAction(menu, L"window.edit.defaults", {}, [this] { document.Select(L"defaults"); });
}

void MainWindow::MakeViewMenu()
{
    constexpr double kZoom = 1.25;
    QMenu& menu = *menuBar()->addMenu(TextOf(L"window.view"));
    AddAction(menu, L"window.view.zoom-in", QKeySequence::ZoomIn, [this] { canvas->ZoomBy(kZoom); });
    AddAction(menu, L"window.view.zoom-out", QKeySequence::ZoomOut, [this] { canvas->ZoomBy(1 / kZoom); });
    AddAction(menu, L"window.view.whole-page", QKeySequence(QStringLiteral("Ctrl+0")),
              [this] { canvas->ZoomToPage(); });
    menu.addSeparator();
    previousPage = AddAction(menu, L"window.view.previous-page", QKeySequence(QStringLiteral("Ctrl+PgUp")),
                             [this] { canvas->SetPage(canvas->CurrentPage() - 1); });
    nextPage = AddAction(menu, L"window.view.next-page", QKeySequence(QStringLiteral("Ctrl+PgDown")),
                         [this] { canvas->SetPage(canvas->CurrentPage() + 1); });
    menu.addSeparator();
    MakePaneEntries(menu);
    menu.addSeparator();
    MakeLanguageMenu(menu);
}

void MainWindow::MakePaneEntries(QMenu& menu)
{
    menu.addAction(editedDock->toggleViewAction());
    menu.addAction(panelDock->toggleViewAction());
    AddAction(menu, L"window.view.next-pane", QKeySequence(QStringLiteral("F6")), [this] { EnterPane(1); });
    AddAction(menu, L"window.view.previous-pane", QKeySequence(QStringLiteral("Shift+F6")),
              [this] { EnterPane(-1); });
}

void MainWindow::MakeLanguageMenu(QMenu& view)
{
    QMenu& menu = *view.addMenu(TextOf(L"window.view.language"));
    auto* const group = new QActionGroup(&menu);
    for (const std::string& language : ReferenceHost::GetLanguages())
    {
        const QString key = QLatin1String("window.language.") + QString::fromStdString(language);
        QAction* const action = menu.addAction(TextOf(FromQString(key)));
        action->setCheckable(true);
        action->setChecked(language == ReferenceHost::GetLanguage());
        group->addAction(action);
        // Queued, because the menu that it was chosen from is made anew.
        connect(
            action, &QAction::triggered, this, [this, language] { ShowLanguage(language); },
            Qt::QueuedConnection);
    }
}

void MainWindow::MakeStatusBar()
{
    pageLabel = new QLabel(this);
    warningsButton = new QToolButton(this);
    warningsButton->setAutoRaise(true);
    connect(warningsButton, &QToolButton::clicked, this, &MainWindow::ShowWarnings);
    statusBar()->addPermanentWidget(warningsButton);
    statusBar()->addPermanentWidget(pageLabel);
}

void MainWindow::Connect()
{
    connect(&document, &Document::closing, this, [this] { canvas->ShowNothing(); });
    connect(&document, &Document::opened, this, &MainWindow::ShowOpened);
    connect(&document, &Document::changed, canvas, &CanvasWidget::RefreshStyles);
    connect(&document, &Document::previewed, canvas, &CanvasWidget::RefreshStyles);
    connect(&document, &Document::selectionChanged, this, &MainWindow::ShowSelection);
    connect(&document, &Document::fileChanged, this, &MainWindow::ShowFile);
    connect(&document, &Document::noted, this,
            [this](const QString& message) { statusBar()->showMessage(message); });
    connect(&document, &Document::failed, this,
            [this](const QString& message)
            {
                if (isAttended)
                    QMessageBox::warning(this, TextOf(L"window.failed"), message);
            });
    connect(canvas, &CanvasWidget::pageChanged, this, &MainWindow::ShowPage);
    connect(canvas, &CanvasWidget::selectionChanged, &document,
            [this](const std::vector<ReferenceHost::DrawingObject*>& objects)
            { document.SelectObjects(objects); });
}

QAction* MainWindow::AddAction(QMenu& menu, OvxStringViewT key, const QKeySequence& keys,
                               const std::function<void()>& work)
{
    QAction* const action = menu.addAction(TextOf(key));
    action->setObjectName(ToQString(key));
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, work);
    return action;
}

} // namespace Desktop
