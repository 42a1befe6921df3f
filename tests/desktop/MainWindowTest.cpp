#include "apps/desktop/canvas/CanvasWidget.h"
#include "tests/desktop/OpenWindow.h"
#include "tests/workbench/EditorFixture.h"

#include <QAction>
#include <QApplication>
#include <QDoubleSpinBox>
#include <QDropEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <QUrl>

using DesktopTests::DialogAnswer;
using DesktopTests::OpenWindow;
using DesktopTests::Press;
using WorkbenchTests::FourBoxes;

namespace
{

struct MainWindow : testing::Test
{
    OpenWindow open{FourBoxes()};

    QAction& Action(const char* key) { return *open.Window().findChild<QAction*>(QLatin1String(key)); }

    void Change()
    {
        open.Select(L"id:1/1");
        open.Choose("fill.color", "Sea");
    }
};

} // namespace

TEST_F(MainWindow, NamesTheStepThatCanBeUndone)
{
    EXPECT_FALSE(Action("window.edit.undo").isEnabled());

    Change();

    EXPECT_EQ(Action("window.edit.undo").text(), QStringLiteral("&Undo Set Fill Colour"));
    EXPECT_TRUE(open.Window().isWindowModified());
}

TEST_F(MainWindow, NamesTheStepThatCanBeDoneAgain)
{
    Change();

    open.Trigger("window.edit.undo");

    EXPECT_EQ(Action("window.edit.redo").text(), QStringLiteral("&Redo Set Fill Colour"));
    EXPECT_FALSE(open.Window().isWindowModified());
}

TEST_F(MainWindow, KeepsWhatTheFileWasWhenToldTo)
{
    open.Trigger("window.file.backup");
    Change();

    open.Trigger("window.file.save");

    EXPECT_EQ(DesktopTests::ReadBytes(open.GetFile().string() + "~"), FourBoxes().Text());
}

TEST_F(MainWindow, RemembersWhetherToKeepWhatFilesWere)
{
    open.Trigger("window.file.backup");

    open.Reopen();

    EXPECT_TRUE(Action("window.file.backup").isChecked());
}

TEST_F(MainWindow, TellsWhichFileWasWritten)
{
    Change();

    open.Trigger("window.file.save");

    EXPECT_EQ(open.Window().statusBar()->currentMessage().toStdString(), open.GetFile().string() + ": saved");
}

TEST_F(MainWindow, LeavesTheKeyboardInTheFieldWhenItSaves)
{
    ASSERT_TRUE(QTest::qWaitForWindowActive(&open.Window()));
    open.Select(L"id:1/1");
    auto* const field = open.Find<QWidget>("outline.width").findChild<QDoubleSpinBox*>();
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("2"));

    open.Trigger("window.file.save");

    EXPECT_EQ(QApplication::focusWidget(), field);
    EXPECT_FALSE(open.GetDocument().IsModified());
    EXPECT_EQ(open.Shown("outline.width"), "2.00 mm");
}

TEST_F(MainWindow, SelectsWhatIsSelectedOnTheCanvas)
{
    auto& objects = open.GetDocument().GetSession().GetDrawing().GetObjects();

    emit open.Window().GetCanvas().selectionChanged({&objects[0], &objects[1]});

    EXPECT_EQ(open.Shown("fill.color"), "ambiguous");
}

TEST_F(MainWindow, StaysOpenWhenTheQuestionForUnsavedChangesIsGivenUp)
{
    Change();
    const DialogAnswer answer([](QDialog& dialog) { Press(dialog, QMessageBox::Cancel); });

    EXPECT_FALSE(open.Window().close());
}

TEST_F(MainWindow, SavesBeforeItClosesWhenAskedTo)
{
    Change();
    const DialogAnswer answer([](QDialog& dialog) { Press(dialog, QMessageBox::Save); });

    EXPECT_TRUE(open.Window().close());

    EXPECT_NE(DesktopTests::ReadBytes(open.GetFile()), FourBoxes().Text());
}

TEST_F(MainWindow, LeavesTheFileWhenChangesAreDiscarded)
{
    Change();
    const DialogAnswer answer([](QDialog& dialog) { Press(dialog, QMessageBox::Discard); });

    EXPECT_TRUE(open.Window().close());

    EXPECT_EQ(DesktopTests::ReadBytes(open.GetFile()), FourBoxes().Text());
}

TEST_F(MainWindow, TellsWhyAFileCannotBeOpened)
{
    const std::filesystem::path broken = open.GetFolder().Write("broken.fodg", "nothing");
    QString text;
    {
        const DialogAnswer answer(
            [&](QDialog& dialog)
            {
                text = static_cast<QMessageBox&>(dialog).text();
                dialog.accept();
            });
        open.Window().OpenFile(broken);
    }

    EXPECT_TRUE(text.contains(QStringLiteral("broken.fodg"))) << text.toStdString();
    EXPECT_EQ(open.GetDocument().GetPath(), open.GetFile());
}

TEST_F(MainWindow, OpensAFileThatIsDroppedOnIt)
{
    const std::filesystem::path other = open.GetFolder().Write("other.fodg", FourBoxes().Text());
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(other.string()))});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);

    QApplication::sendEvent(&open.Window(), &enter);
    QApplication::sendEvent(&open.Window(), &drop);

    EXPECT_EQ(open.GetDocument().GetPath(), other);
}

TEST_F(MainWindow, SpeaksGermanFromOneMomentToTheNext)
{
    open.Select(L"id:1/1,id:1/2");

    open.Window().ShowLanguage("de");

    EXPECT_EQ(open.Window().menuBar()->actions().front()->text(), QStringLiteral("&Datei"));
    EXPECT_EQ(open.Shown("fill.color"), "unterschiedlich");
    EXPECT_EQ(open.GetDocument().GetEditor().GetSelection().objects.size(), 2U);
}

TEST_F(MainWindow, PutsAFileThatIsOpenedAmongTheRecentOnes)
{
    QStringList entries;
    for (const QAction* const action : open.Window().menuBar()->findChildren<QAction*>())
        entries.append(action->text());

    EXPECT_TRUE(entries.contains(QString::fromStdString(open.GetFile().string())));
}
