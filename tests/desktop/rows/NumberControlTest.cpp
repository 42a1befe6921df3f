#include "tests/desktop/OpenWindow.h"
#include "tests/workbench/EditorFixture.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QStyleOptionSpinBox>
#include <QTest>
#include <QTimer>

using DesktopTests::OpenWindow;
using WorkbenchTests::FourBoxes;

namespace
{

struct NumberControl : testing::Test
{
    OpenWindow open{FourBoxes()};

    QDoubleSpinBox& Field(const char* row) { return *open.Find<QWidget>(row).findChild<QDoubleSpinBox*>(); }

    QSlider& Slider(const char* row) { return *open.Find<QWidget>(row).findChild<QSlider*>(); }

    static QPoint UpArrow(const QDoubleSpinBox& field)
    {
        QStyleOptionSpinBox option;
        option.initFrom(&field);
        option.subControls = QStyle::SC_All;
        return field.style()
            ->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, &field)
            .center();
    }

    static QPoint Handle(const QSlider& slider)
    {
        QStyleOptionSlider option;
        option.initFrom(&slider);
        option.orientation = slider.orientation();
        option.minimum = slider.minimum();
        option.maximum = slider.maximum();
        option.sliderPosition = slider.value();
        return slider.style()
            ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider)
            .center();
    }

    /// Holds the arrow for so long that it steps three times.
    void HoldUpArrow()
    {
        QDoubleSpinBox& field = Field("outline.width");
        QTest::mousePress(&field, Qt::LeftButton, {}, UpArrow(field));
        field.stepBy(1);
        field.stepBy(1);
    }

    void LetGo()
    {
        QDoubleSpinBox& field = Field("outline.width");
        QTest::mouseRelease(&field, Qt::LeftButton, {}, UpArrow(field));
        QApplication::processEvents();
    }

    /// Presses an arrow key and lets it repeat, without letting go.
    void HoldUpKey()
    {
        QDoubleSpinBox& field = Field("outline.width");
        field.setFocus();
        QTest::keyPress(&field, Qt::Key_Up);
        RepeatUpKey();
        RepeatUpKey();
    }

    /// Lets go of the key for good.
    void LetGoOfKey()
    {
        QTest::keyRelease(&Field("outline.width"), Qt::Key_Up);
        WaitForPause();
    }

    void WaitForPause()
    {
        const auto* const pause = open.Find<QWidget>("outline.width").findChild<QTimer*>();
        while (pause->isActive())
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    void RepeatUpKey()
    {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(&Field("outline.width"), &event);
    }

    void DragSlider()
    {
        QSlider& slider = Slider("fill.transparency");
        const QPoint handle = Handle(slider);
        QTest::mousePress(&slider, Qt::LeftButton, {}, handle);
        for (int pixels = 1; pixels <= 20; ++pixels)
            QTest::mouseMove(&slider, handle + QPoint(pixels, 0));
    }

    std::size_t Steps() { return open.GetDocument().GetEditor().GetStepCount(); }
};

} // namespace

TEST_F(NumberControl, MakesOneStepOfAnArrowThatIsHeld)
{
    open.Select(L"id:1/1");

    HoldUpArrow();
    LetGo();

    EXPECT_EQ(open.Shown("outline.width"), "3.80 mm");
    EXPECT_EQ(Steps(), 1U);
}

TEST_F(NumberControl, LeavesNothingOfAHeldArrowThatEscapeEnds)
{
    open.Select(L"id:1/1");

    HoldUpArrow();
    QTest::keyClick(&Field("outline.width"), Qt::Key_Escape);
    LetGo();

    EXPECT_EQ(open.Shown("outline.width"), "3.50 mm");
    EXPECT_EQ(Steps(), 0U);
}

TEST_F(NumberControl, MakesOneStepOfAnArrowKeyThatIsHeld)
{
    open.Select(L"id:1/1");

    HoldUpKey();
    LetGoOfKey();

    EXPECT_GT(Field("outline.width").value(), 3.7);
    EXPECT_EQ(Steps(), 1U);
}

TEST_F(NumberControl, LeavesNothingOfAHeldArrowKeyThatEscapeEnds)
{
    open.Select(L"id:1/1");

    HoldUpKey();
    QTest::keyClick(&Field("outline.width"), Qt::Key_Escape);
    RepeatUpKey();
    LetGoOfKey();

    EXPECT_EQ(open.Shown("outline.width"), "3.50 mm");
    EXPECT_EQ(Steps(), 0U);
}

TEST_F(NumberControl, MakesOneStepOfAHeldKeyThatThePlatformTellsAsPressedAgain)
{
    open.Select(L"id:1/1");
    QDoubleSpinBox& field = Field("outline.width");
    field.setFocus();

    for (int repeat = 0; repeat < 3; ++repeat)
        QTest::keyClick(&field, Qt::Key_Up);
    WaitForPause();

    EXPECT_EQ(open.Shown("outline.width"), "3.80 mm");
    EXPECT_EQ(Steps(), 1U);
}

TEST_F(NumberControl, HasEndedADragBeforeAnotherKeyIsTaken)
{
    open.Select(L"id:1/1");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&open.Window()));
    Field("outline.width").setFocus();
    QTest::keyClick(&Field("outline.width"), Qt::Key_Up);

    QTest::keyClick(&Field("outline.width"), Qt::Key_Z, Qt::ControlModifier);

    EXPECT_EQ(open.Shown("outline.width"), "3.50 mm");
    EXPECT_EQ(Steps(), 0U);
}

TEST_F(NumberControl, TakesATypedNumberAfterADragThatEscapeEnded)
{
    open.Select(L"id:1/1");
    HoldUpArrow();
    QTest::keyClick(&Field("outline.width"), Qt::Key_Escape);
    LetGo();

    Field("outline.width").selectAll();
    QTest::keyClicks(&Field("outline.width"), QStringLiteral("2"));
    QTest::keyClick(&Field("outline.width"), Qt::Key_Return);

    EXPECT_EQ(open.Shown("outline.width"), "2.00 mm");
}

TEST_F(NumberControl, MakesOneStepOfASliderThatIsDragged)
{
    open.Select(L"id:1/1");

    DragSlider();
    QTest::mouseRelease(&Slider("fill.transparency"), Qt::LeftButton, {}, QPoint(30, 5));
    QApplication::processEvents();

    EXPECT_NE(open.Shown("fill.transparency"), "<not set>");
    EXPECT_EQ(Steps(), 1U);
}

TEST_F(NumberControl, LeavesNothingOfASliderThatEscapeEnds)
{
    open.Select(L"id:1/1");

    DragSlider();
    QTest::keyClick(&Slider("fill.transparency"), Qt::Key_Escape);
    QTest::mouseRelease(&Slider("fill.transparency"), Qt::LeftButton, {}, QPoint(30, 5));
    QApplication::processEvents();

    EXPECT_EQ(open.Shown("fill.transparency"), "<not set>");
    EXPECT_EQ(Steps(), 0U);
}

TEST_F(NumberControl, IsNotHeldByAnotherButton)
{
    open.Select(L"id:1/1");

    QTest::mousePress(&Field("outline.width"), Qt::RightButton, {}, UpArrow(Field("outline.width")));

    EXPECT_FALSE(open.GetDocument().GetEditor().IsGroupOpen());
}

TEST_F(NumberControl, StepsFromZeroWhereTheTargetsDiffer)
{
    open.Select(L"id:1/1,id:1/2");

    QTest::keyClick(&Field("outline.width"), Qt::Key_Up);
    WaitForPause();

    EXPECT_EQ(open.Shown("outline.width"), "0.10 mm");
}

TEST_F(NumberControl, WritesTheDefaultsWhenADragEnds)
{
    open.Select(L"defaults");

    HoldUpKey();
    EXPECT_EQ(Steps(), 0U);
    LetGoOfKey();

    EXPECT_GT(Field("outline.width").value(), 0.2);
    EXPECT_EQ(Steps(), 1U);
}

TEST_F(NumberControl, LetsTheKeysForUndoReachTheWindow)
{
    open.Select(L"id:1/1");
    QDoubleSpinBox& field = Field("outline.width");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&open.Window()));
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, QStringLiteral("2"));
    QTest::keyClick(&field, Qt::Key_Return);
    ASSERT_EQ(Steps(), 1U);

    QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);

    EXPECT_EQ(open.Shown("outline.width"), "3.50 mm");
    EXPECT_EQ(Steps(), 0U);
}
