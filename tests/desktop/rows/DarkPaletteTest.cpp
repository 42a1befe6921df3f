#include "tests/desktop/OpenWindow.h"
#include "tests/desktop/rows/Contrast.h"
#include "tests/workbench/EditorFixture.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>

#include <optional>

using DesktopTests::MostContrast;
using DesktopTests::OpenWindow;
using WorkbenchTests::FourBoxes;

namespace
{

/// A window in a palette as desktops have it that are dark.
struct DarkPalette : testing::Test
{
    DarkPalette()
    {
        QApplication::setPalette(QPalette(QColor(0x35, 0x35, 0x35), QColor(0x35, 0x35, 0x35)));
        open.emplace(FourBoxes());
        open->Select(L"id:1/1,id:1/2");
    }

    ~DarkPalette() override
    {
        open.reset();
        QApplication::setPalette(QPalette());
    }

    /// How clearly what is written in a widget stands out from its ground.
    static double Readability(QWidget& widget, QPalette::ColorRole ground)
    {
        const QRect inside = widget.rect().adjusted(3, 3, -3, -3);
        return MostContrast(widget.grab(inside).toImage(), widget.palette().color(ground));
    }

    std::optional<OpenWindow> open;
};

} // namespace

TEST_F(DarkPalette, LeavesThePlaceholderOfAnAmbiguousValueReadable)
{
    auto& field = *open->Find<QWidget>("outline.width").findChild<QLineEdit*>();
    ASSERT_TRUE(field.text().isEmpty());

    EXPECT_GE(Readability(field, QPalette::Base), 3);
}

TEST_F(DarkPalette, LeavesLabelsReadable)
{
    EXPECT_GE(Readability(open->Find<QLabel>("outline.width.label"), QPalette::Window), 4.5);
}

TEST_F(DarkPalette, LeavesTheIconsOfStatesVisible)
{
    EXPECT_GE(Readability(open->Find<QWidget>("outline.width.state"), QPalette::Window), 3);
}
