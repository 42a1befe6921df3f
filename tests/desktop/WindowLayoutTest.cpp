#include "apps/desktop/canvas/CanvasWidget.h"
#include "apps/desktop/rows/RowControl.h"
#include "tests/desktop/OpenWindow.h"
#include "tests/workbench/EditorFixture.h"

#include <QAccessible>
#include <QApplication>
#include <QDockWidget>
#include <QTest>

#include <gmock/gmock.h>

#include <algorithm>
#include <vector>

using DesktopTests::OpenWindow;
using WorkbenchTests::FourBoxes;

namespace
{

struct WindowLayout : testing::Test
{
    OpenWindow open{FourBoxes()};

    WindowLayout()
    {
        open.Select(L"id:1/2");
        EXPECT_TRUE(QTest::qWaitForWindowActive(&open.Window()));
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        QApplication::processEvents();
    }

    bool IsKeyboardIn(const char* dock)
    {
        return open.Find<QDockWidget>(dock).isAncestorOf(QApplication::focusWidget());
    }

    /// All widgets that Tab comes to, from the canvas on, which keeps Tab for its objects and is left by
    /// Ctrl+Tab.
    std::vector<QWidget*> WalkByTab()
    {
        std::vector<QWidget*> walked;
        open.Window().GetCanvas().setFocus();
        constexpr std::size_t kEnough = 500;
        do
        {
            walked.push_back(QApplication::focusWidget());
            const bool isOnCanvas = walked.back() == &open.Window().GetCanvas();
            Press(Qt::Key_Tab, isOnCanvas ? Qt::ControlModifier : Qt::NoModifier);
        } while (QApplication::focusWidget() != walked.front() && walked.size() < kEnough);
        return walked;
    }

    std::vector<QWidget*> FocusOfRows()
    {
        std::vector<QWidget*> fields;
        for (Desktop::RowControl* const control : open.Window().findChildren<Desktop::RowControl*>())
            fields.push_back(control->focusProxy());
        return fields;
    }
};

} // namespace

TEST_F(WindowLayout, ClosesTheSectionsThatWereClosedBefore)
{
    open.Window().RestoreLayout();
    QTest::mouseClick(&open.Find<QWidget>("fill.title"), Qt::LeftButton);
    ASSERT_FALSE(open.Find<QWidget>("fill.color").isVisible());

    open.Reopen();

    EXPECT_FALSE(open.Find<QWidget>("fill.color").isVisible());
    EXPECT_TRUE(open.Find<QWidget>("outline.color").isVisible());
}

TEST_F(WindowLayout, HidesTheDocksThatWereHiddenBefore)
{
    open.Window().RestoreLayout();
    open.Find<QDockWidget>("edited").close();

    open.Reopen();

    EXPECT_FALSE(open.Find<QDockWidget>("edited").isVisible());
    EXPECT_TRUE(open.Find<QDockWidget>("panels").isVisible());
}

TEST_F(WindowLayout, StaysWhenTheLanguageChanges)
{
    QTest::mouseClick(&open.Find<QWidget>("fill.title"), Qt::LeftButton);
    open.Find<QDockWidget>("edited").close();

    open.Window().ShowLanguage("de");
    QApplication::processEvents();

    EXPECT_FALSE(open.Find<QWidget>("fill.color").isVisible());
    EXPECT_FALSE(open.Find<QDockWidget>("edited").isVisible());
}

TEST_F(WindowLayout, LetsTheKeyboardGoRoundItsAreas)
{
    open.Window().GetCanvas().setFocus();

    Press(Qt::Key_F6);
    EXPECT_TRUE(IsKeyboardIn("edited"));
    Press(Qt::Key_F6);
    EXPECT_TRUE(IsKeyboardIn("panels"));
    Press(Qt::Key_F6);
    EXPECT_EQ(QApplication::focusWidget(), &open.Window().GetCanvas());
    Press(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_TRUE(IsKeyboardIn("panels"));
}

TEST_F(WindowLayout, LetsTheKeyboardComeToEveryRowFromTopToBottom)
{
    const std::vector<QWidget*> walked = WalkByTab();

    std::vector<QWidget*> rows;
    const std::vector<QWidget*> fields = FocusOfRows();
    std::copy_if(walked.begin(), walked.end(), std::back_inserter(rows),
                 [&](QWidget* widget)
                 { return std::find(fields.begin(), fields.end(), widget) != fields.end(); });
    EXPECT_EQ(rows, fields);
}

TEST_F(WindowLayout, LetsTheKeyboardComeToStylesBeforePanels)
{
    const std::vector<QWidget*> walked = WalkByTab();

    const auto place = [&](const char* name)
    { return std::find(walked.begin(), walked.end(), &open.Find<QWidget>(name)) - walked.begin(); };
    EXPECT_LT(place("edited.styles"), place("style.title"));
    EXPECT_LT(place("fill.title"), place("fill.presets"));
    EXPECT_LT(place("fill.presets"), place("fill.color.state"));
    EXPECT_LT(place("fill.color.state"), static_cast<std::ptrdiff_t>(walked.size()));
}

TEST_F(WindowLayout, KeepsTheOrderOfTheKeyboardInAnotherLanguage)
{
    open.Window().ShowLanguage("de");
    QApplication::processEvents();

    const std::vector<QWidget*> walked = WalkByTab();

    ASSERT_GT(walked.size(), 3U);
    EXPECT_TRUE(open.Find<QDockWidget>("edited").isAncestorOf(walked[1]));
    EXPECT_TRUE(open.Find<QDockWidget>("panels").isAncestorOf(walked.back()));
}

TEST_F(WindowLayout, NamesEveryWidgetThatTheKeyboardComesTo)
{
    for (QWidget* const widget : WalkByTab())
    {
        QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(told, nullptr) << widget->metaObject()->className();
        EXPECT_FALSE(told->text(QAccessible::Name).isEmpty())
            << widget->metaObject()->className() << " " << widget->objectName().toStdString();
    }
}

TEST_F(WindowLayout, TellsRowsOfTheSameLabelApart)
{
    const auto name = [&](const char* row)
    { return open.Find<Desktop::RowControl>(row).focusProxy()->accessibleName(); };

    EXPECT_NE(name("fill.color"), name("outline.color"));
}
