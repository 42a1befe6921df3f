#include "tests/desktop/OpenWindow.h"
#include "tests/workbench/EditorFixture.h"
#include "tests/workbench/StyleDrawings.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

using DesktopTests::DialogAnswer;
using DesktopTests::OpenWindow;
using WorkbenchTests::FourBoxes;
using WorkbenchTests::NumberedStyles;

TEST(StyleMenu, ChecksTheStyleOfTheTargets)
{
    OpenWindow open(FourBoxes());

    open.Select(L"id:1/1");

    EXPECT_EQ(open.Entries("style.styles"), QStringList({"No Style", "*Base", "Accent"}));
}

TEST(StyleMenu, GivesTheTargetsTheStyleThatIsChosen)
{
    OpenWindow open(FourBoxes());
    open.Select(L"id:1/1");

    open.Choose("style.styles", "Accent");

    EXPECT_EQ(open.Shown("fill.color"), "#00aa00");
    EXPECT_EQ(open.Find<QLabel>("edited.chain").text().toStdString(), "Accent \u2192 Base");
}

TEST(StyleMenu, TakesAStyleThatIsFilteredInTheDialogOfFurtherStyles)
{
    OpenWindow open(NumberedStyles(40));
    open.Select(L"name:Two");
    const DialogAnswer answer(
        [](QDialog& dialog)
        {
            QTest::keyClicks(dialog.findChild<QLineEdit*>(), QStringLiteral("s40"));
            EXPECT_EQ(dialog.findChild<QListWidget*>()->currentItem()->text(), QStringLiteral("S40"));
            QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
        });

    open.Choose("style.styles", "More Styles...");

    EXPECT_EQ(open.Shown("style.style"), "S40");
}

TEST(StyleMenu, ChangesNothingWhenTheDialogOfFurtherStylesIsGivenUp)
{
    OpenWindow open(NumberedStyles(40));
    open.Select(L"name:Two");
    const DialogAnswer answer([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });

    open.Choose("style.styles", "More Styles...");

    EXPECT_EQ(open.Shown("style.style"), "S2");
    EXPECT_FALSE(open.GetDocument().IsModified());
}
