// What the window shows of its document and asks of the person. How it is put together stands in
// WindowMaking.cpp.

#include "apps/desktop/MainWindow.h"

#include "apps/desktop/RecentFiles.h"
#include "apps/desktop/ToolkitLanguage.h"
#include "apps/desktop/WindowMemory.h"
#include "apps/desktop/WindowText.h"
#include "apps/desktop/canvas/CanvasWidget.h"
#include "apps/desktop/dialogs/ChangesDialog.h"
#include "apps/desktop/dialogs/NameDialog.h"
#include "apps/desktop/dialogs/SelectDialog.h"
#include "apps/desktop/sections/PanelStack.h"
#include "reference_host/resources/Language.h"

#include <QAction>
#include <QCloseEvent>
#include <QColorDialog>
#include <QDockWidget>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>
#include <QToolButton>
#include <QUrl>

#include <utility>

namespace Desktop
{
namespace
{

QString FileFilter()
{
    return TextOf(L"window.file.drawings") + QLatin1String(" (*.odg *.fodg *.otg);;") +
           TextOf(L"window.file.all") + QLatin1String(" (*)");
}

/// The one local file that is dropped; empty for anything else.
QString DroppedFile(const QMimeData& data)
{
    return data.urls().size() == 1 ? data.urls().front().toLocalFile() : QString();
}

/// A field that is typed in takes what was typed when it loses the keyboard, which it has again afterwards.
void TakeTypedValue(const QWidget& window)
{
    QWidget* const field = window.focusWidget();
    if (field == nullptr || !field->hasFocus())
        return;
    field->clearFocus();
    field->setFocus();
}

} // namespace

MainWindow::MainWindow(Workbench::PanelFolder panels)
    : progress(*this), document(std::move(panels), dialogs), canvas(new CanvasWidget(this))
{
    document.SetProgress(&progress);
    dialogs.SetWindow(this);
    setCentralWidget(canvas);
    canvas->setAccessibleName(TextOf(L"window.canvas"));
    setAcceptDrops(true);
    resize(1280, 860);
    MakeDocks();
    MakeMenus();
    MakeStatusBar();
    Connect();
    ShowOpened();
}

MainWindow::~MainWindow()
{
    // What listens to the document is gone before it ends.
    document.disconnect();
    delete panelDock;
    delete editedDock;
    canvas->ShowNothing();
}

void MainWindow::SetAttended(bool isSomebodyThere) noexcept
{
    isAttended = isSomebodyThere;
    document.SetProgress(isAttended ? &progress : nullptr);
}

bool MainWindow::OpenFile(const std::filesystem::path& file)
{
    if (document.IsBusy())
        return false;
    // Now, and not when the dialog for the progress takes the keyboard.
    TakeTypedValue(*this);
    if (!AskToKeepChanges() || !document.Open(file))
        return false;
    // What only a picture was made of was not opened by anybody.
    if (isAttended)
        AddRecentFile(PathToQString(file));
    ShowRecentFiles();
    return true;
}

bool MainWindow::Save()
{
    TakeTypedValue(*this);
    return document.GetPath().empty() ? SaveAs() : document.Save(document.GetPath());
}

bool MainWindow::SaveAs()
{
    TakeTypedValue(*this);
    const QString file = QFileDialog::getSaveFileName(this, TextOf(L"window.file.save-as.title"),
                                                      PathToQString(document.GetPath()), FileFilter());
    if (file.isEmpty() || !document.Save(PathFromQString(file)))
        return false;
    AddRecentFile(file);
    ShowRecentFiles();
    return true;
}

void MainWindow::ShowLanguage(const std::string& language)
{
    if (!ReferenceHost::SetLanguage(language))
        return;
    QLocale::setDefault(QLocale(QString::fromStdString(language)));
    TranslateToolkit(language);
    const QByteArray layout = saveState();
    const QStringList closed = panelStack->GetClosed();
    delete std::exchange(panelDock, nullptr);
    delete std::exchange(editedDock, nullptr);
    // Panels word their titles when they are handed what is edited.
    document.Select(document.GetEditor().GetSelection().selector);
    MakeDocks();
    panelStack->SetClosed(closed);
    restoreState(layout);
    MakeMenus();
    canvas->setAccessibleName(TextOf(L"window.canvas"));
    statusBar()->clearMessage();
    ShowFile();
    ShowPage();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    TakeTypedValue(*this);
    event->setAccepted(!document.IsBusy() && AskToKeepChanges());
    if (event->isAccepted() && remembersLayout)
        RememberLayout();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!DroppedFile(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    const QString file = DroppedFile(*event->mimeData());
    if (file.isEmpty())
        return;
    event->acceptProposedAction();
    OpenFile(PathFromQString(file));
}

void MainWindow::ShowOpened()
{
    canvas->ShowPicture(document.TakePicture());
    ShowFile();
    ShowSelection();
    ShowPage();
}

void MainWindow::ShowFile()
{
    const QString file = PathToQString(document.GetPath());
    const QString name = file.isEmpty() ? TextOf(L"window.file.untitled") : QFileInfo(file).fileName();
    setWindowFilePath(file);
    setWindowTitle(name + QLatin1String("[*] \u2014 ") + TextOf(L"window.title"));
    setWindowModified(document.IsModified());
    const QString undo = document.GetUndoName();
    const QString redo = document.GetRedoName();
    undoAction->setText(undo.isEmpty() ? TextOf(L"window.edit.undo.nothing")
                                       : TextOf(L"window.edit.undo", EscapeMnemonics(undo)));
    redoAction->setText(redo.isEmpty() ? TextOf(L"window.edit.redo.nothing")
                                       : TextOf(L"window.edit.redo", EscapeMnemonics(redo)));
    undoAction->setEnabled(!undo.isEmpty());
    redoAction->setEnabled(!redo.isEmpty());
    ShowWarningCount();
}

/// Saving may have something to say as well.
void MainWindow::ShowWarningCount()
{
    const QStringList& warnings = document.GetWarnings();
    warningsButton->setVisible(!warnings.isEmpty());
    warningsButton->setText(warnings.size() == 1
                                ? TextOf(L"window.warning")
                                : TextOf(L"window.warnings", QString::number(warnings.size())));
}

void MainWindow::ShowSelection()
{
    canvas->SetSelectedObjects(document.GetEditor().GetSelection().objects);
}

void MainWindow::ShowPage()
{
    const int page = canvas->CurrentPage();
    const int count = canvas->PageCount();
    pageLabel->setText(TextOf(L"window.page", QStringLiteral("%1 / %2").arg(page + 1).arg(count)));
    previousPage->setEnabled(page > 0);
    nextPage->setEnabled(page + 1 < count);
}

void MainWindow::ShowRecentFiles()
{
    recentMenu->clear();
    const QStringList files = ReadRecentFiles();
    for (const QString& file : files)
        connect(recentMenu->addAction(EscapeMnemonics(file)), &QAction::triggered, this,
                [this, file] { OpenFile(PathFromQString(file)); });
    recentMenu->setEnabled(!files.isEmpty());
    if (files.isEmpty())
        return;
    recentMenu->addSeparator();
    connect(recentMenu->addAction(TextOf(L"window.file.forget-recent")), &QAction::triggered, this,
            [this]
            {
                ClearRecentFiles();
                ShowRecentFiles();
            });
}

void MainWindow::AskForFile()
{
    const QString file =
        QFileDialog::getOpenFileName(this, TextOf(L"window.file.open.title"),
                                     PathToQString(document.GetPath().parent_path()), FileFilter());
    if (!file.isEmpty())
        OpenFile(PathFromQString(file));
}

/// Asks what becomes of changes that were not saved.
///
/// @returns false when the person wants to go on with the drawing.
bool MainWindow::AskToKeepChanges()
{
    if (!document.IsModified())
        return true;
    QMessageBox box(QMessageBox::Warning, TextOf(L"window.question"), TextOf(L"window.unsaved"),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    box.button(QMessageBox::Save)->setText(TextOf(L"window.unsaved.save"));
    box.button(QMessageBox::Discard)->setText(TextOf(L"window.unsaved.discard"));
    box.button(QMessageBox::Cancel)->setText(TextOf(L"window.cancel"));
    box.setDefaultButton(QMessageBox::Save);
    const int answer = box.exec();
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && Save());
}

void MainWindow::AskForSelection()
{
    SelectDialog(document, this).exec();
}

void MainWindow::DefineColour()
{
    NameDialog dialog(TextOf(L"window.palette.title"), TextOf(L"window.palette.name"), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const OvxStringT name = FromQString(dialog.GetName());
    const auto look = document.GetSession().GetDrawing().FindPaletteColour(name);
    const QColor before = look ? QColor(look->red, look->green, look->blue) : QColor(Qt::gray);
    const QColor colour = QColorDialog::getColor(before, this, TextOf(L"window.colour.title"),
                                                 QColorDialog::DontUseNativeDialog);
    if (colour.isValid())
        document.Edit(
            [&](Workbench::Editor& editor) {
                editor.DefineColours({{name, FromQString(colour.name())}});
            });
}

void MainWindow::ShowWarnings()
{
    QMessageBox::information(this, TextOf(L"window.warnings.title"),
                             document.GetWarnings().join(QLatin1Char('\n')));
}

void MainWindow::ShowChanges()
{
    TakeTypedValue(*this);
    ChangesDialog(document.GetEditor().DescribeChanges(), document.GetSession().GetPanels(), this).exec();
}

void MainWindow::KeepBackup(bool isKept)
{
    document.SetKeepsBackup(isKept);
    Remember(QStringLiteral("keepBackup"), isKept);
}

} // namespace Desktop
