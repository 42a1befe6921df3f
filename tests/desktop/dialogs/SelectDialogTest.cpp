#include "tests/desktop/OpenWindow.h"
#include "tests/workbench/EditorFixture.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QTest>

using DesktopTests::DialogAnswer;
using DesktopTests::OpenWindow;
using WorkbenchTests::FourBoxes;

namespace
{

struct SelectDialog : testing::Test
{
    OpenWindow open{FourBoxes()};

    static void Enter(QDialog& dialog, const char* selector)
    {
        QTest::keyClicks(dialog.findChild<QLineEdit*>(), QLatin1String(selector));
        QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
    }
};

} // namespace

TEST_F(SelectDialog, SelectsWhatIsTypedInPlaceOfWhatWasSelected)
{
    open.Select(L"id:1/1");
    const DialogAnswer answer([](QDialog& dialog) { Enter(dialog, "style:Acc*"); });

    open.Trigger("window.edit.select");

    EXPECT_EQ(open.Shown("fill.color"), "#00aa00");
}

TEST_F(SelectDialog, TellsWhatItTakesAndStaysOpen)
{
    QString told;
    const DialogAnswer answers({[](QDialog& dialog)
                                {
                                    Enter(dialog, "colour:red");
                                    EXPECT_TRUE(dialog.isVisible());
                                    dialog.reject();
                                },
                                [&](QDialog& message)
                                {
                                    told = static_cast<QMessageBox&>(message).text();
                                    message.accept();
                                }});

    open.Trigger("window.edit.select");

    EXPECT_TRUE(told.contains(QStringLiteral("colour:red"))) << told.toStdString();
    EXPECT_TRUE(told.contains(QStringLiteral("kind:GLOB"))) << told.toStdString();
}

TEST_F(SelectDialog, BeginsWithWhatIsSelected)
{
    open.Select(L"sheet:Accent");
    const DialogAnswer answer(
        [](QDialog& dialog)
        {
            EXPECT_EQ(dialog.findChild<QLineEdit*>()->text(), QStringLiteral("sheet:Accent"));
            dialog.reject();
        });

    open.Trigger("window.edit.select");
}
