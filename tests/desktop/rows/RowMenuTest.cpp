#include "tests/desktop/OpenWindow.h"
#include "tests/workbench/EditorFixture.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <gmock/gmock.h>

using DesktopTests::DialogAnswer;
using DesktopTests::OpenWindow;
using WorkbenchTests::FourBoxes;

namespace
{

struct RowMenu : testing::Test
{
    OpenWindow open{FourBoxes()};

    /// Whether the menu of the row is open now; closes it.
    bool TakeOpen()
    {
        QMenu* const menu = open.Find<QWidget>("outline.width.state").findChild<QMenu*>();
        const bool isOpen = menu->isVisible() && !menu->actions().isEmpty();
        menu->close();
        return isOpen;
    }

    static void RightClick(QWidget& widget)
    {
        const QPoint place(3, 3);
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget.mapToGlobal(place));
        QApplication::sendEvent(&widget, &event);
    }
};

} // namespace

TEST_F(RowMenu, NamesTheParentAndEnablesWhatThePanelDoes)
{
    open.Select(L"id:1/2");

    EXPECT_EQ(open.Entries("fill.color.state"),
              QStringList({"Revert to Base", "Apply to Base", "Clear Local Value", "-Break Colour Link",
                           "Create Style from This...", "Edit Base"}));
}

TEST_F(RowMenu, EnablesNothingThatNeedsALocalValueWithoutOne)
{
    open.Select(L"id:1/1");

    EXPECT_EQ(open.Entries("fill.color.state").mid(0, 3),
              QStringList({"-Revert to Base", "-Apply to Base", "-Clear Local Value"}));
}

TEST_F(RowMenu, RevertsARow)
{
    open.Select(L"id:1/2");

    open.Choose("fill.color.state", "Revert to Base");

    EXPECT_EQ(open.Shown("fill.color"), "#3366cc");
}

TEST_F(RowMenu, AppliesARowToTheParent)
{
    open.Select(L"id:1/2");

    open.Choose("fill.color.state", "Apply to Base");

    open.Select(L"id:1/1");
    EXPECT_EQ(open.Shown("fill.color"), "#ff0000");
}

TEST_F(RowMenu, BreaksTheLinkOfAColourAndKeepsItsLook)
{
    open.Select(L"id:1/1");
    open.Choose("fill.color", "Sea");

    open.Choose("fill.color.state", "Break Colour Link");

    EXPECT_EQ(open.Shown("fill.color"), "#2a6f97");
}

TEST_F(RowMenu, MakesAStyleOfTheNameThatIsGiven)
{
    open.Select(L"id:1/2");
    const DialogAnswer answer(
        [](QDialog& dialog)
        {
            dialog.findChild<QLineEdit*>()->setText(QStringLiteral("Warm"));
            dialog.accept();
        });

    open.Choose("fill.color.state", "Create Style from This...");

    EXPECT_TRUE(open.GetDocument().Select(L"sheet:Warm"));
    EXPECT_EQ(open.Shown("fill.color"), "#ff0000");
}

TEST_F(RowMenu, OpensTheParentStyleForEditing)
{
    open.Select(L"id:1/2");

    open.Choose("fill.color.state", "Edit Base");

    EXPECT_EQ(open.GetDocument().GetEditor().GetSelection().selector, L"sheet:Base");
    EXPECT_EQ(open.Shown("fill.color"), "#3366cc");
}

TEST_F(RowMenu, OpensByARightClickOnIconLabelAndControl)
{
    open.Select(L"id:1/2");
    auto& control = open.Find<QWidget>("outline.width");

    for (QWidget* const each :
         {&open.Find<QWidget>("outline.width.state"), &open.Find<QWidget>("outline.width.label"),
          static_cast<QWidget*>(control.findChild<QDoubleSpinBox*>()),
          static_cast<QWidget*>(control.findChild<QLineEdit*>())})
    {
        RightClick(*each);
        EXPECT_TRUE(TakeOpen()) << each->metaObject()->className();
    }
}

TEST_F(RowMenu, OpensByTheKeyForMenus)
{
    open.Select(L"id:1/2");
    auto& field = *open.Find<QWidget>("outline.width").findChild<QDoubleSpinBox*>();

    QTest::keyClick(&field, Qt::Key_F10, Qt::ShiftModifier);

    EXPECT_TRUE(TakeOpen());
}

TEST_F(RowMenu, OfAWholePanelRevertsAllItsRows)
{
    open.Select(L"id:1/2");

    open.Choose("fill.whole", "Revert to Base");

    EXPECT_EQ(open.Shown("fill.color"), "#3366cc");
}

TEST_F(RowMenu, OfAWholePanelOpensFromItsTitleByKey)
{
    open.Select(L"id:1/2");

    QTest::keyClick(&open.Find<QWidget>("fill.title"), Qt::Key_F10, Qt::ShiftModifier);

    QMenu& menu = *open.Find<QWidget>("fill.whole").findChild<QMenu*>();
    EXPECT_TRUE(menu.isVisible());
    menu.close();
}
