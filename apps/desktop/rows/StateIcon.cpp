// The pictures are SVG resources; where the toolkit's reader for these is not installed, the same circles are
// painted here.

#include "apps/desktop/rows/StateIcon.h"

#include "apps/desktop/WindowText.h"

#include <QColor>
#include <QImageReader>
#include <QPainter>

#include <algorithm>
#include <iterator>

namespace Desktop
{
namespace
{

enum class Inside
{
    Empty,
    Half,
    Full
};

struct StatePicture
{
    const char* image;
    const char* resource;
    QRgb colour;
    Inside inside;
    Qt::PenStyle pen;
};

/// The colours, which are those of the resources, stand out by three to one on light and on dark ground.
constexpr StatePicture kPictures[] = {
    {"NoneImage", ":/icons/none.svg", 0xff7f858e, Inside::Empty, Qt::DotLine},
    {"OverriddenImage", ":/icons/overridden.svg", 0xffcc6a12, Inside::Full, Qt::SolidLine},
    {"InheritedImage", ":/icons/inherited.svg", 0xff3787bd, Inside::Empty, Qt::SolidLine},
    {"AmbiguousImage", ":/icons/ambiguous.svg", 0xff9c6ec4, Inside::Half, Qt::SolidLine}};

QIcon Paint(const StatePicture& picture)
{
    constexpr int kScale = 4;
    constexpr int kSide = 16 * kScale;
    QPixmap pixmap(kSide, kSide);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(kScale, kScale);
    const QColor colour(picture.colour);
    const QRectF circle(3.5, 3.5, 9, 9);
    painter.setPen(QPen(colour, 1.5, picture.pen));
    painter.setBrush(picture.inside == Inside::Full ? QBrush(colour) : QBrush(Qt::NoBrush));
    painter.drawEllipse(circle);
    painter.setBrush(colour);
    // Angles count from three o'clock, in sixteenths of a degree.
    if (picture.inside == Inside::Half)
        painter.drawPie(circle, -90 * 16, 180 * 16);
    return QIcon(pixmap);
}

} // namespace

QIcon MakeStateIcon(const OvxStringT& image)
{
    static const bool canReadSvg = QImageReader::supportedImageFormats().contains("svg");
    const QString name = ToQString(image);
    const auto* found =
        std::find_if(std::begin(kPictures), std::end(kPictures),
                     [&](const StatePicture& picture) { return name == QLatin1String(picture.image); });
    if (found == std::end(kPictures))
        found = std::begin(kPictures);
    return canReadSvg ? QIcon(QLatin1String(found->resource)) : Paint(*found);
}

} // namespace Desktop
