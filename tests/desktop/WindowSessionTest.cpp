#include "apps/desktop/canvas/CanvasWidget.h"
#include "tests/desktop/OpenWindow.h"
#include "tests/workbench/EditorFixture.h"

#include <QAction>
#include <QColorDialog>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

using DesktopTests::DialogAnswer;
using DesktopTests::OpenWindow;
using WorkbenchTests::FourBoxes;

namespace
{

struct WindowSession : testing::Test
{
    OpenWindow open{FourBoxes()};

    void ChooseColour(const char* row, const QColor& colour)
    {
        const DialogAnswer answer(
            [=](QDialog& dialog)
            {
                static_cast<QColorDialog&>(dialog).setCurrentColor(colour);
                dialog.accept();
            });
        open.Choose(row, "Choose Colour...");
    }

    void DragWidth(int pixels)
    {
        auto& label = open.Find<QLabel>("outline.width.label");
        QTest::mousePress(&label, Qt::LeftButton, {}, QPoint(5, 5));
        QTest::mouseMove(&label, QPoint(5 + pixels, 5));
        QTest::mouseRelease(&label, Qt::LeftButton, {}, QPoint(5 + pixels, 5));
    }

    void TypeWidth(const char* number)
    {
        auto& field = *open.Find<QWidget>("outline.width").findChild<QDoubleSpinBox*>();
        field.selectAll();
        QTest::keyClicks(&field, QLatin1String(number));
        QTest::keyClick(&field, Qt::Key_Return);
    }

    void EditObjects()
    {
        open.Select(L"id:1/1,id:1/2");
        ChooseColour("fill.color", QColor(0, 0, 128));
        DragWidth(12);
        open.Select(L"id:1/2");
        open.Choose("fill.color.state", "Apply to Base");
        open.Choose("outline.width.state", "Clear Local Value");
        open.Choose("style.styles", "Accent");
        open.Choose("fill.color", "Sea");
        open.Choose("fill.color.state", "Break Colour Link");
    }

    void EditStyles()
    {
        open.Select(L"sheet:Base");
        TypeWidth("1.25");
        open.Select(L"defaults");
        ChooseColour("outline.color", QColor(128, 0, 0));
        open.Select(L"id:1/3");
        open.Choose("fill.color", "Sea");
        const DialogAnswer answer(
            [](QDialog& dialog)
            {
                dialog.findChild<QLineEdit*>()->setText(QStringLiteral("Warm & Bright"));
                dialog.accept();
            });
        open.Choose("fill.whole", "Create Style from This...");
    }

    std::size_t Steps() { return open.GetDocument().GetEditor().GetStepCount(); }
};

} // namespace

TEST_F(WindowSession, IsOneStepForEachThingThatWasDone)
{
    EditObjects();
    EXPECT_EQ(Steps(), 7U);

    EditStyles();
    EXPECT_EQ(Steps(), 11U);
}

TEST_F(WindowSession, ComesBackToTheBytesOfTheFileWhenAllIsUndone)
{
    EditObjects();
    EditStyles();

    while (open.Window().findChild<QAction*>(QStringLiteral("window.edit.undo"))->isEnabled())
        open.Trigger("window.edit.undo");

    EXPECT_FALSE(open.Window().isWindowModified());
    const std::filesystem::path copy = open.GetFolder().GetPath() / "copy.fodg";
    ASSERT_TRUE(open.GetDocument().Save(copy));
    EXPECT_EQ(DesktopTests::ReadBytes(copy), FourBoxes().Text());
}

TEST_F(WindowSession, ComesBackToWhatItWasWhenAllIsDoneAgain)
{
    EditObjects();
    EditStyles();
    const std::filesystem::path before = open.GetFolder().GetPath() / "before.fodg";
    ASSERT_TRUE(open.GetDocument().Save(before));
    const std::size_t steps = Steps();

    for (std::size_t step = 0; step < steps; ++step)
        open.Trigger("window.edit.undo");
    for (std::size_t step = 0; step < steps; ++step)
        open.Trigger("window.edit.redo");

    const std::filesystem::path after = open.GetFolder().GetPath() / "after.fodg";
    ASSERT_TRUE(open.GetDocument().Save(after));
    EXPECT_EQ(DesktopTests::ReadBytes(after), DesktopTests::ReadBytes(before));
}

TEST(WindowPages, AreTurnedFromTheMenu)
{
    OpenWindow open(FlatDrawing().Page("<draw:rect/>").Page("<draw:ellipse/>"));

    open.Trigger("window.view.next-page");

    EXPECT_EQ(open.Window().GetCanvas().CurrentPage(), 1);
    EXPECT_FALSE(open.Window().findChild<QAction*>(QStringLiteral("window.view.next-page"))->isEnabled());
}

TEST(WindowPages, AreTurnedByKeyOnTheCanvas)
{
    OpenWindow open(FlatDrawing().Page("<draw:rect/>").Page("<draw:ellipse/>"));

    QTest::keyClick(&open.Window().GetCanvas(), Qt::Key_PageDown);

    EXPECT_EQ(open.Window().GetCanvas().CurrentPage(), 1);
    EXPECT_FALSE(open.Window().findChild<QAction*>(QStringLiteral("window.view.next-page"))->isEnabled());
    EXPECT_TRUE(open.Window().findChild<QAction*>(QStringLiteral("window.view.previous-page"))->isEnabled());
}
