#include "tests/desktop/canvas/CanvasFixture.h"

#include "host/utils/Utf8.h"
#include "reference_host/document/DrawingObject.h"
#include "reference_host/document/picture/DrawingPicture.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

CanvasTest::CanvasTest()
{
    canvas.resize(800, 600);
    QObject::connect(&canvas, &Desktop::CanvasWidget::selectionChanged,
                     [this](const std::vector<ReferenceHost::DrawingObject*>& objects)
                     { told.push_back(objects); });
}

CanvasTest::~CanvasTest()
{
    canvas.ShowNothing();
}

void CanvasTest::Show(const FlatDrawing& drawing)
{
    ShowText(drawing.Text());
}

void CanvasTest::ShowText(const std::string& text)
{
    canvas.ShowNothing();
    session.reset();
    session = std::make_unique<Workbench::Session>(folder.Write("shown.fodg", text),
                                                   std::vector<Workbench::PanelDescription>());
    canvas.ShowPicture(session->GetDrawing().ReadPicture());
}

void CanvasTest::ShowShapes(const std::string& shapes)
{
    Show(
        FlatDrawing()
            .Defaults(
                R"(<style:graphic-properties draw:fill="solid" draw:fill-color="#ff0000" draw:stroke="none"/>)")
            .Page(shapes));
}

QImage CanvasTest::Picture()
{
    QImage image(canvas.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::magenta);
    canvas.render(&image);
    return image;
}

QColor CanvasTest::ColourAt(double x, double y)
{
    return Picture().pixelColor(canvas.ToWidget({x, y}).toPoint());
}

void CanvasTest::Drag(const std::vector<QPointF>& places, Qt::MouseButton button,
                      Qt::KeyboardModifiers modifiers)
{
    // Places are those of the page as it was when the button was pressed.
    std::vector<QPointF> inWidget;
    for (const QPointF& place : places)
        inWidget.push_back(canvas.ToWidget(place));
    const auto send = [&](QEvent::Type type, QPointF place, Qt::MouseButton changed, Qt::MouseButtons held)
    {
        QMouseEvent event(type, place, canvas.mapToGlobal(place), changed, held, modifiers);
        QApplication::sendEvent(&canvas, &event);
    };
    send(QEvent::MouseButtonPress, inWidget.front(), button, button);
    for (std::size_t index = 1; index < inWidget.size(); ++index)
        send(QEvent::MouseMove, inWidget[index], Qt::NoButton, button);
    send(QEvent::MouseButtonRelease, inWidget.back(), button, Qt::NoButton);
}

void CanvasTest::PressKey(int key, Qt::KeyboardModifiers modifiers)
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(&canvas, &press);
}

void CanvasTest::Turn(QPointF onPage, int notches, Qt::KeyboardModifiers modifiers)
{
    const QPointF place = canvas.ToWidget(onPage);
    QWheelEvent event(place, canvas.mapToGlobal(place), {}, {0, notches * 120}, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&canvas, &event);
}

std::string CanvasTest::Selected() const
{
    if (told.empty())
        return "-";
    std::string ids;
    for (const ReferenceHost::DrawingObject* object : told.back())
        ids += (ids.empty() ? "" : " ") + OvxUtils::ToUtf8(object->GetId());
    return ids;
}
