#include "apps/desktop/sections/PresetIcon.h"

#include "apps/desktop/WindowText.h"

#include <QColor>
#include <QLinearGradient>
#include <QPainter>

#include <algorithm>

namespace Desktop
{
namespace
{

constexpr int kSide = 48;

QColor ColourOf(const ReferenceHost::PicturePart& part)
{
    const auto look = part.colour.value_or(CLR_COLORSPEC::Rgb{0xbb, 0xbb, 0xbb});
    QColor colour(look.red, look.green, look.blue);
    colour.setAlphaF(static_cast<float>(1 - std::clamp(part.transparency, 0, 100) / 100.0));
    return colour;
}

/// What a definition looks like is known to its drawing alone: its kind shows.
QBrush BrushOf(const ReferenceHost::PicturePart& part)
{
    const QColor colour = ColourOf(part);
    if (part.type == L"none" || (part.type.empty() && !part.colour))
        return Qt::NoBrush;
    if (part.type == L"hatch")
        return {colour.darker(), Qt::BDiagPattern};
    if (part.type == L"bitmap")
        return {colour.darker(), Qt::Dense4Pattern};
    if (part.type != L"gradient")
        return colour;
    QLinearGradient gradient(0, 0, 0, kSide);
    gradient.setColorAt(0, colour.lighter());
    gradient.setColorAt(1, colour.darker());
    return gradient;
}

QPen PenOf(const ReferenceHost::PicturePart& part)
{
    if (part.type == L"none" || (part.type.empty() && !part.colour && part.widthInHundredthMm == 0))
        return Qt::NoPen;
    constexpr double kPixelsPerHundredthMm = 0.06;
    const double width = std::clamp(part.widthInHundredthMm * kPixelsPerHundredthMm, 2.0, 12.0);
    return {ColourOf(part), width, part.type == L"dash" ? Qt::DashLine : Qt::SolidLine};
}

} // namespace

QIcon PaintPreset(const ReferenceHost::PresetPicture& picture)
{
    QPixmap pixmap(kSide, kSide);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(BrushOf(picture.fill));
    painter.setPen(PenOf(picture.outline));
    painter.drawRect(QRectF(8, 8, kSide - 16, kSide - 16));
    return QIcon(pixmap);
}

} // namespace Desktop
