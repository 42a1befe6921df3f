#pragma once

#include "apps/desktop/Document.h"
#include "apps/desktop/FileProgress.h"
#include "apps/desktop/dialogs/WindowDialogs.h"
#include "apps/workbench/PanelFolder.h"

#include <QMainWindow>

#include <filesystem>
#include <functional>
#include <string>

class QAction;
class QDockWidget;
class QLabel;
class QMenu;
class QToolButton;

namespace Desktop
{

class CanvasWidget;
class EditedBox;
class PanelStack;

/// The window: the drawing in the middle, what is edited and the panels beside it, and the menus above.
class MainWindow final : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(Workbench::PanelFolder panels);
    ~MainWindow() override;

    [[nodiscard]] Document& GetDocument() noexcept { return document; }

    [[nodiscard]] CanvasWidget& GetCanvas() noexcept { return *canvas; }

    /// Whether somebody is there to read messages. With nobody there, as for a picture, none are shown.
    void SetAttended(bool isSomebodyThere) noexcept;

    /// Opens a file, after asking what becomes of changes that were not saved.
    ///
    /// @returns whether it is open.
    bool OpenFile(const std::filesystem::path& file);

    /// Saves where the drawing lies, and asks where that is when it lies nowhere.
    bool Save();

    /// Asks where to save.
    bool SaveAs();

    /// Shows the docks and sections as they were when a window was closed last; what is remembered is kept
    /// from there on.
    void RestoreLayout();

    /// Opens what has that name, as a person would: the list or menu of a button, or what an entry of the
    /// menus shows. Comes back when that is closed, if it waits for a person.
    ///
    /// @returns false when there is nothing of that name to open.
    bool OpenNamed(const QString& name);

    /// Shows all texts in another language; one that there is not changes nothing.
    void ShowLanguage(const std::string& language);

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    // Making the window
    void MakeDocks();
    void MakeMenus();
    void MakeFileMenu();
    void MakeEditMenu();
    void MakeViewMenu();
    void MakeLanguageMenu(QMenu& view);
    void MakeSelectionEntries(QMenu& menu);
    void MakePaneEntries(QMenu& menu);
    void MakeStatusBar();
    void Connect();
    QAction* AddAction(QMenu& menu, OvxStringViewT key, const QKeySequence& keys,
                       const std::function<void()>& work);

    // Following the document
    void ShowOpened();
    void ShowFile();
    void ShowSelection();
    void ShowPage();
    void ShowWarningCount();
    void ShowRecentFiles();
    void RememberLayout() const;

    // What menus do
    void AskForFile();
    [[nodiscard]] bool AskToKeepChanges();
    void AskForSelection();
    void DefineColour();
    void ShowChanges();
    void ShowWarnings();
    void KeepBackup(bool isKept);
    void EnterPane(int by);

    bool isAttended = true;
    bool remembersLayout = false;
    WindowDialogs dialogs;
    FileProgress progress;
    Document document;
    CanvasWidget* canvas; ///< Owned by this, as are the others.
    QDockWidget* editedDock = nullptr;
    QDockWidget* panelDock = nullptr;
    PanelStack* panelStack = nullptr;
    QMenu* recentMenu = nullptr;
    QAction* undoAction = nullptr;
    QAction* redoAction = nullptr;
    QAction* previousPage = nullptr;
    QAction* nextPage = nullptr;
    QLabel* pageLabel = nullptr;
    QToolButton* warningsButton = nullptr;
};

} // namespace Desktop
