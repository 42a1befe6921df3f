#include "tests/desktop/OpenWindow.h"

#include "apps/desktop/WindowText.h"
#include "apps/desktop/rows/RowControl.h"
#include "reference_host/resources/Language.h"

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>

namespace DesktopTests
{
namespace
{

/// The one application object, which no widget may be without.
class ApplicationEnvironment : public testing::Environment
{
public:
    void SetUp() override
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application.emplace(argumentCount, arguments);
    }

    void TearDown() override { application.reset(); }

private:
    int argumentCount = 1;
    char name[14] = "desktop_tests";
    char* arguments[2] = {name, nullptr};
    std::optional<QApplication> application;
};

[[maybe_unused]] const testing::Environment* const environment =
    testing::AddGlobalTestEnvironment(std::make_unique<ApplicationEnvironment>().release());

/// The text of a field, or what stands there instead of one in angle brackets.
std::string Content(const QLineEdit& field)
{
    return field.text().isEmpty() ? "<" + field.placeholderText().toStdString() + ">"
                                  : field.text().toStdString();
}

} // namespace

OpenWindow::OpenWindow(const FlatDrawing& drawing) : file(folder.Write("drawing.fodg", drawing.Text()))
{
    ReferenceHost::SetLanguage("en");
    QLocale::setDefault(QLocale(QLocale::English));
    Open();
}

void OpenWindow::Open()
{
    window.emplace(Workbench::ReadPanelFolder(SHIPPED_PANELS));
    EXPECT_TRUE(window->OpenFile(file));
    window->show();
    QApplication::processEvents();
}

void OpenWindow::Reopen()
{
    EXPECT_TRUE(window->close());
    window.reset();
    Open();
    window->RestoreLayout();
    QApplication::processEvents();
}

void OpenWindow::Select(const wchar_t* selector)
{
    EXPECT_TRUE(GetDocument().Select(selector));
}

std::string OpenWindow::Shown(const char* row)
{
    auto& control = Find<Desktop::RowControl>(row);
    if (const auto* const number = control.findChild<QDoubleSpinBox*>())
        return Content(*number->findChild<QLineEdit*>());
    if (const auto* const list = control.findChild<QComboBox*>())
        return list->lineEdit() != nullptr ? Content(*list->lineEdit())
               : list->currentIndex() < 0  ? "<" + list->placeholderText().toStdString() + ">"
                                           : list->currentText().toStdString();
    return WithoutMnemonics(control.findChild<QToolButton*>()->text()).toStdString();
}

QMenu& OpenWindow::OpenMenu(const char* button)
{
    QMenu* const menu = Find<QWidget>(button).findChild<QMenu*>();
    if (menu == nullptr)
        throw std::runtime_error(std::string(button) + " opens no menu");
    menu->popup(QPoint(10, 10));
    return *menu;
}

QStringList OpenWindow::Entries(const char* button)
{
    QMenu& menu = OpenMenu(button);
    QStringList entries;
    for (const QAction* const action : menu.actions())
    {
        const QString mark = QLatin1String(!action->isEnabled() ? "-" : action->isChecked() ? "*" : "");
        if (!action->isSeparator())
            entries.append(mark + WithoutMnemonics(action->text()));
    }
    menu.close();
    return entries;
}

void OpenWindow::Choose(const char* button, const char* entry)
{
    QMenu& menu = OpenMenu(button);
    for (QAction* const action : menu.actions())
    {
        if (WithoutMnemonics(action->text()) != QString::fromUtf8(entry))
            continue;
        EXPECT_TRUE(action->isEnabled()) << entry;
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
        QApplication::processEvents();
        return;
    }
    menu.close();
    ADD_FAILURE() << button << " has no entry " << entry;
}

void OpenWindow::Trigger(const char* key)
{
    QAction* const action = window->findChild<QAction*>(QLatin1String(key));
    ASSERT_NE(action, nullptr) << key;
    EXPECT_TRUE(action->isEnabled()) << key;
    action->trigger();
    QApplication::processEvents();
}

QWidget& OpenWindow::NeedWidget(QWidget* widget, const char* name)
{
    if (widget == nullptr)
        throw std::runtime_error(std::string("the window has no ") + name);
    return *widget;
}

DialogAnswer::DialogAnswer(std::vector<Answer> itsAnswers) : answers(std::move(itsAnswers))
{
    QObject::connect(&timer, &QTimer::timeout, [this] { Look(); });
    timer.start(1);
}

DialogAnswer::~DialogAnswer()
{
    EXPECT_EQ(given, answers.size()) << "dialogs were shown";
}

void DialogAnswer::Look()
{
    constexpr const char* kIsAnswered = "isAnswered";
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || dialog->property(kIsAnswered).toBool() || given == answers.size())
        return;
    dialog->setProperty(kIsAnswered, true);
    // Later, because this timer does not come due again, for a dialog that the answer leads to, before it is
    // done.
    QMetaObject::invokeMethod(
        dialog, [this, dialog, place = given++] { answers[place](*dialog); }, Qt::QueuedConnection);
}

void Press(QDialog& question, QMessageBox::StandardButton button)
{
    static_cast<QMessageBox&>(question).button(button)->click();
}

QString WithoutMnemonics(QString text)
{
    const QChar kept(1);
    return text.replace(QLatin1String("&&"), kept).remove(QLatin1Char('&')).replace(kept, QLatin1Char('&'));
}

std::string ReadBytes(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace DesktopTests
