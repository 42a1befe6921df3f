#pragma once

#include <QByteArray>
#include <QMetaProperty>
#include <QObject>

namespace Bench
{

/// A Qt object with the rows of an outline as declared properties.
class QtOutlineObject final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int lineType MEMBER type)
    Q_PROPERTY(int lineColor MEMBER color)
    Q_PROPERTY(int lineWidth READ GetWidth WRITE SetWidth)
    Q_PROPERTY(int lineTransparency MEMBER transparency)
    Q_PROPERTY(int lineDash MEMBER dash)
    Q_PROPERTY(int lineJoin MEMBER join)
    Q_PROPERTY(int lineCap MEMBER cap)
    Q_PROPERTY(int lineStartArrow MEMBER startArrow)
    Q_PROPERTY(int lineEndArrow MEMBER endArrow)

public:
    [[nodiscard]] int GetWidth() const { return width; }

    void SetWidth(int newWidth) { width = newWidth; }

private:
    int type = 0;
    int color = 0;
    int width = 0;
    int transparency = 0;
    int dash = 0;
    int join = 0;
    int cap = 0;
    int startArrow = 0;
    int endArrow = 0;
};

/// Reads and writes the width by its name: looked up once in the class, or by the text.
class QtOutline
{
public:
    QtOutline();

    [[nodiscard]] int ReadResolved() const { return property.read(&object).toInt(); }

    [[nodiscard]] int ReadByText() const { return object.property(name.constData()).toInt(); }

    void WriteResolved(int value) { property.write(&object, value); }

    void WriteByText(int value) { object.setProperty(name.constData(), value); }

private:
    QtOutlineObject object;
    QByteArray name;
    QMetaProperty property;
};

} // namespace Bench
