#include "tests/desktop/canvas/CanvasFixture.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QEvent>

#include <string>

namespace
{

using ManyShapes = CanvasTest;

TEST_F(ManyShapes, ArePaintedAllAndMovedInPart)
{
    std::string shapes;
    for (int index = 0; index < 5000; ++index)
    {
        shapes += R"(<draw:rect svg:width="2mm" svg:height="2mm" svg:x=")" + std::to_string(index % 100 * 2) +
                  R"(mm" svg:y=")" + std::to_string(index / 100 * 5) + "mm\"/>";
    }
    ShowShapes(shapes);
    EXPECT_EQ(ColourAt(2100, 2600), QColor(255, 0, 0));

    Turn({7000, 3000}, -1);
    const QImage moved = Picture();

    QEvent paintAnew(QEvent::PaletteChange);
    QApplication::sendEvent(&canvas, &paintAnew);
    EXPECT_EQ(moved, Picture()) << "what was moved and what was painted beside it fit together";
}

TEST_F(ManyShapes, AreSharpAgainWhenTheWheelRests)
{
    std::string shapes;
    for (int index = 0; index < 600; ++index)
    {
        shapes += R"(<draw:rect svg:width="6mm" svg:height="6mm" svg:x=")" + std::to_string(index % 20 * 10) +
                  R"(mm" svg:y=")" + std::to_string(index / 20 * 9) + "mm\"/>";
    }
    ShowShapes(shapes);
    static_cast<void>(Picture());

    Turn({7000, 9000}, 5, Qt::ControlModifier);
    const QImage atOnce = Picture();
    QImage rested = atOnce;
    for (const QDeadlineTimer most(10000); rested == atOnce && !most.hasExpired(); rested = Picture())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 50);

    EXPECT_NE(rested, atOnce) << "edges are blurred as long as the wheel turns";
    EXPECT_EQ(atOnce.pixelColor(canvas.ToWidget({7300, 9300}).toPoint()), QColor(255, 0, 0))
        << "but in their places";
    EXPECT_EQ(rested.pixelColor(canvas.ToWidget({7300, 9300}).toPoint()), QColor(255, 0, 0));
}

} // namespace
