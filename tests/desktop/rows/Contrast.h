#pragma once

#include <QColor>
#include <QImage>

namespace DesktopTests
{

/// How clearly two colours stand out from each other, from 1 for not at all to 21 for black on white.
[[nodiscard]] double Contrast(const QColor& one, const QColor& other);

/// How clearly the pixel of a picture that does so most stands out from a ground.
[[nodiscard]] double MostContrast(const QImage& picture, const QColor& ground);

} // namespace DesktopTests
