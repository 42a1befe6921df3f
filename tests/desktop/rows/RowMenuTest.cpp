#include "tests/desktop/OpenWindow.h"
#include "tests/workbench/EditorFixture.h"

#include <QLineEdit>

#include <gmock/gmock.h>

using DesktopTests::DialogAnswer;
using DesktopTests::OpenWindow;
using WorkbenchTests::FourBoxes;

namespace
{

struct RowMenu : testing::Test
{
    OpenWindow open{FourBoxes()};
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
