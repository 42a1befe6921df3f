#include "apps/desktop/WindowPicture.h"

#include "tests/desktop/OpenWindow.h"
#include "tests/workbench/EditorFixture.h"

#include <QApplication>
#include <QImage>

using Desktop::PaintWindow;
using DesktopTests::OpenWindow;
using WorkbenchTests::FourBoxes;

namespace
{

struct WindowPicture : testing::Test
{
    OpenWindow open{FourBoxes()};

    bool ShowsMoreThanTheWindow(const char* opened)
    {
        const QImage plain = PaintWindow(open.Window(), {}).toImage();
        const QImage picture = PaintWindow(open.Window(), QLatin1String(opened)).toImage();
        return picture.size() == plain.size() && picture != plain;
    }

    static bool IsSomethingOpen()
    {
        return QApplication::activePopupWidget() != nullptr || QApplication::activeModalWidget() != nullptr;
    }
};

} // namespace

TEST_F(WindowPicture, ShowsTheListOfAButton)
{
    EXPECT_TRUE(ShowsMoreThanTheWindow("fill.styles"));
    EXPECT_FALSE(IsSomethingOpen());
}

TEST_F(WindowPicture, ShowsTheMenuOfARow)
{
    EXPECT_TRUE(ShowsMoreThanTheWindow("fill.color.state"));
    EXPECT_FALSE(IsSomethingOpen());
}

TEST_F(WindowPicture, ShowsTheValuesOfARow)
{
    EXPECT_TRUE(ShowsMoreThanTheWindow("fill.type"));
    EXPECT_FALSE(IsSomethingOpen());
}

TEST_F(WindowPicture, ShowsADialogOfTheMenus)
{
    EXPECT_TRUE(ShowsMoreThanTheWindow("window.edit.select"));
    EXPECT_FALSE(IsSomethingOpen());
}

TEST_F(WindowPicture, IsEmptyWhereThereIsNothingOfThatName)
{
    EXPECT_TRUE(PaintWindow(open.Window(), QStringLiteral("fill.frame")).isNull());
}
