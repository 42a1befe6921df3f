#include "tests/desktop/canvas/CanvasFixture.h"

#include <QElapsedTimer>

#include <cstdio>
#include <string>

namespace
{

using ManyShapes = CanvasTest;

/// Says how long things take and asserts no times, which depend on the machine.
TEST_F(ManyShapes, ArePaintedAllAndMovedInPart)
{
    std::string shapes;
    for (int index = 0; index < 5000; ++index)
    {
        shapes += R"(<draw:rect svg:width="2mm" svg:height="2mm" svg:x=")" + std::to_string(index % 100 * 2) +
                  R"(mm" svg:y=")" + std::to_string(index / 100 * 5) + "mm\"/>";
    }
    ShowShapes(shapes);
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(ColourAt(2100, 2600), QColor(255, 0, 0));
    std::printf("first: %lld ms, ", static_cast<long long>(timer.restart()));
    canvas.RefreshStyles();
    static_cast<void>(Picture());
    std::printf("again: %lld ms, ", static_cast<long long>(timer.restart()));
    Turn({7000, 3000}, -1);
    static_cast<void>(Picture());
    std::printf("moved: %lld ms\n", static_cast<long long>(timer.elapsed()));
}

} // namespace
