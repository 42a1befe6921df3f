#include "tests/desktop/OpenWindow.h"
#include "tests/workbench/EditorFixture.h"

#include <QLabel>
#include <QRadioButton>
#include <QTest>
#include <QTreeWidget>

using DesktopTests::OpenWindow;
using WorkbenchTests::FourBoxes;

namespace
{

struct EditedBox : testing::Test
{
    OpenWindow open{FourBoxes()};

    QTreeWidget& Styles() { return open.Find<QTreeWidget>("edited.styles"); }

    QTreeWidgetItem& Style(const char* name)
    {
        return *Styles().findItems(QLatin1String(name), Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }

    void Click(const char* style)
    {
        QTest::mouseClick(Styles().viewport(), Qt::LeftButton, {},
                          Styles().visualItemRect(&Style(style)).center());
    }
};

} // namespace

TEST_F(EditedBox, ShowsStylesBelowTheirParentsWithTheirUsers)
{
    EXPECT_EQ(Style("Accent").parent(), &Style("Base"));
    EXPECT_EQ(Style("Base").text(1), QStringLiteral("3"));
    EXPECT_EQ(Style("Accent").text(1), QStringLiteral("1"));
}

TEST_F(EditedBox, EditsANamedStyleThatIsClicked)
{
    Click("Accent");

    EXPECT_EQ(open.Shown("fill.color"), "#00aa00");
    EXPECT_EQ(open.Find<QLabel>("edited.chain").text().toStdString(), "Accent \u2192 Base");
}

TEST_F(EditedBox, ChangesTheUsersOfANamedStyleThatIsEdited)
{
    Click("Base");

    open.Choose("fill.color", "Sea");

    open.Select(L"id:1/1");
    EXPECT_EQ(open.Shown("fill.color"), "Sea");
}

TEST_F(EditedBox, SelectsTheUsersOfAStyleThatIsDoubleClicked)
{
    Click("Base");
    QTest::mouseDClick(Styles().viewport(), Qt::LeftButton, {},
                       Styles().visualItemRect(&Style("Base")).center());

    EXPECT_EQ(open.GetDocument().GetEditor().GetSelection().selector, L"id:1/1,id:1/2,id:1/4");
}

TEST_F(EditedBox, ComesBackToTheObjectsThatWereSelectedBefore)
{
    open.Select(L"id:1/2");
    QTest::mouseClick(&open.Find<QRadioButton>("edited.defaults"), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(open.Shown("fill.color"), "#cccccc");

    QTest::mouseClick(&open.Find<QRadioButton>("edited.objects"), Qt::LeftButton, {}, QPoint(8, 8));

    EXPECT_EQ(open.Shown("fill.color"), "#ff0000");
}

TEST_F(EditedBox, WalksThroughTheStylesByKeys)
{
    Click("Base");

    QTest::keyClick(&Styles(), Qt::Key_Down);

    EXPECT_EQ(open.Shown("fill.color"), "#00aa00");
}

TEST_F(EditedBox, SelectsTheUsersOfAStyleByTheKeyForEntering)
{
    Click("Base");

    QTest::keyClick(&Styles(), Qt::Key_Return);

    EXPECT_EQ(open.GetDocument().GetEditor().GetSelection().selector, L"id:1/1,id:1/2,id:1/4");
}

TEST_F(EditedBox, TellsOfEachStyleWhatItSets)
{
    EXPECT_TRUE(Style("Accent").toolTip(0).contains(QStringLiteral("fill.color")))
        << Style("Accent").toolTip(0).toStdString();
}
