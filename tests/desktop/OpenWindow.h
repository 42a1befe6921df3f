#pragma once

#include "apps/desktop/MainWindow.h"
#include "tests/reference_host/document/FlatDrawing.h"
#include "tests/reference_host/document/ScratchFolder.h"
#include "tests/workbench/ScratchConfiguration.h"

#include <QDialog>
#include <QMenu>
#include <QMessageBox>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QToolButton>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace DesktopTests
{

/// A window on a drawing, with the panels that are shipped and a configuration of its own. Speaks English.
class OpenWindow
{
public:
    explicit OpenWindow(const FlatDrawing& drawing);

    [[nodiscard]] Desktop::MainWindow& Window() noexcept { return *window; }

    [[nodiscard]] Desktop::Document& GetDocument() noexcept { return window->GetDocument(); }

    [[nodiscard]] const std::filesystem::path& GetFile() const noexcept { return file; }

    [[nodiscard]] const ScratchFolder& GetFolder() const noexcept { return folder; }

    [[nodiscard]] const WorkbenchTests::ScratchConfiguration& GetConfiguration() const noexcept
    {
        return configuration;
    }

    /// Ends the window as it is and shows another on the same file, with what the first one remembered.
    void Reopen();

    void Select(const wchar_t* selector);

    /// The widget of that name within the window; fails the test and throws without one.
    template <class T>
    [[nodiscard]] T& Find(const char* name)
    {
        return static_cast<T&>(NeedWidget(window->findChild<T*>(QLatin1String(name)), name));
    }

    /// What a row's control shows: the text of its field, button or list, and in angle brackets what stands
    /// there instead of a value.
    [[nodiscard]] std::string Shown(const char* row);

    /// The entries of the menu that a button opens, in order: "*" before one that is checked, "-" before one
    /// that is not enabled.
    [[nodiscard]] QStringList Entries(const char* button);

    /// Opens the menu of a button and clicks the entry of that text.
    void Choose(const char* button, const char* entry);

    /// Does once what the menu of the window does under that key.
    void Trigger(const char* key);

private:
    static QWidget& NeedWidget(QWidget* widget, const char* name);
    void Open();
    QMenu& OpenMenu(const char* button);

    WorkbenchTests::ScratchConfiguration configuration;
    ScratchFolder folder;
    std::filesystem::path file;
    std::optional<Desktop::MainWindow> window;
};

/// Waits for dialogs, which run their own loop, and lets each be dealt with once: the first by the first of
/// the answers, and so on.
class DialogAnswer
{
public:
    using Answer = std::function<void(QDialog&)>;

    explicit DialogAnswer(Answer answer) : DialogAnswer(std::vector<Answer>{std::move(answer)}) {}

    explicit DialogAnswer(std::vector<Answer> itsAnswers);
    DialogAnswer(const DialogAnswer&) = delete;
    DialogAnswer& operator=(const DialogAnswer&) = delete;

    /// Fails the test when there were not as many dialogs as answers.
    ~DialogAnswer();

private:
    void Look();

    std::vector<Answer> answers;
    std::size_t given = 0;
    QTimer timer;
};

/// Clicks a button of a question.
void Press(QDialog& question, QMessageBox::StandardButton button);

/// A text without what marks the letters that choose it.
[[nodiscard]] QString WithoutMnemonics(QString text);

/// What a file holds.
[[nodiscard]] std::string ReadBytes(const std::filesystem::path& file);

} // namespace DesktopTests
