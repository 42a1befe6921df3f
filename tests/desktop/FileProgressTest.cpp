#include "apps/desktop/FileProgress.h"

#include "tests/desktop/OpenWindow.h"
#include "tests/workbench/EditorFixture.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>
#include <QUrl>

#include <chrono>

using Desktop::FileProgress;
using DesktopTests::OpenWindow;
using WorkbenchTests::FourBoxes;

namespace
{

/// A window whose work takes as long as a test says: by its clock the step is what passes between two looks.
struct WindowWithProgress : testing::Test
{
    OpenWindow open{FourBoxes()};
    std::filesystem::path other = open.GetFolder().Write("other.fodg", FourBoxes().Text());
    std::chrono::milliseconds step{FileProgress::kPatience};
    std::chrono::milliseconds now{0};
    int looks = 0;
    FileProgress progress{open.Window(), [this]
                          {
                              ++looks;
                              return now += step;
                          }};

    WindowWithProgress() { open.GetDocument().SetProgress(&progress); }

    [[nodiscard]] QProgressDialog* Dialog() { return open.Window().findChild<QProgressDialog*>(); }

    /// Does something as soon as the dialog lets events happen.
    template <class Work>
    void DoMeanwhile(Work work)
    {
        QTimer::singleShot(0, &open.Window(), work);
    }

    /// Clicks on the button of the dialog.
    void CancelMeanwhile()
    {
        DoMeanwhile(
            [this]
            {
                ASSERT_NE(Dialog(), nullptr);
                Dialog()->findChild<QPushButton*>()->click();
            });
    }

    void Change()
    {
        open.Select(L"id:1/1");
        open.Choose("fill.color", "Sea");
    }
};

} // namespace

TEST_F(WindowWithProgress, BlocksEverythingElseWhileAFileTakesItsTime)
{
    QString title;
    QString label;
    bool isModal = false;
    DoMeanwhile(
        [&]
        {
            ASSERT_NE(Dialog(), nullptr);
            title = Dialog()->windowTitle();
            label = Dialog()->labelText();
            isModal = QApplication::activeModalWidget() == Dialog();
        });

    EXPECT_TRUE(open.Window().OpenFile(other));

    EXPECT_EQ(title, QStringLiteral("Opening other.fodg"));
    EXPECT_FALSE(label.isEmpty());
    EXPECT_TRUE(isModal);
    EXPECT_EQ(Dialog(), nullptr);
}

TEST_F(WindowWithProgress, ShowsNothingForHalfASecond)
{
    step = std::chrono::milliseconds(0);
    bool hasHappened = false;
    DoMeanwhile([&] { hasHappened = true; });

    EXPECT_TRUE(open.Window().OpenFile(other));

    // With a dialog there is no need to look at the clock any more, and events happen.
    EXPECT_GT(looks, 10);
    EXPECT_FALSE(hasHappened);
}

TEST_F(WindowWithProgress, KeepsTheDrawingWhenOpeningAnotherIsCancelled)
{
    Change();
    open.GetDocument().Save(open.GetFile());
    CancelMeanwhile();

    EXPECT_FALSE(open.Window().OpenFile(other));

    EXPECT_EQ(open.GetDocument().GetPath(), open.GetFile());
    EXPECT_EQ(open.Shown("fill.color"), "Sea");
    EXPECT_EQ(Dialog(), nullptr);
}

TEST_F(WindowWithProgress, LeavesTheFileWhenSavingIsCancelled)
{
    Change();
    CancelMeanwhile();

    EXPECT_FALSE(open.Window().Save());

    EXPECT_EQ(DesktopTests::ReadBytes(open.GetFile()), FourBoxes().Text());
    EXPECT_TRUE(open.Window().isWindowModified());
}

TEST_F(WindowWithProgress, OpensNoSecondFileInBetween)
{
    const std::filesystem::path dropped = open.GetFolder().Write("dropped.fodg", FourBoxes().Text());
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(dropped.string()))});
    DoMeanwhile(
        [&]
        {
            QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&open.Window(), &drop);
        });

    EXPECT_TRUE(open.Window().OpenFile(other));

    EXPECT_EQ(open.GetDocument().GetPath(), other);
}

TEST_F(WindowWithProgress, StaysOpenWhileAFileIsOpened)
{
    bool hasClosed = true;
    DoMeanwhile([&] { hasClosed = open.Window().close(); });

    EXPECT_TRUE(open.Window().OpenFile(other));

    EXPECT_FALSE(hasClosed);
}
