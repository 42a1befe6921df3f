#include "tests/desktop/rows/Contrast.h"

#include <algorithm>
#include <cmath>

namespace DesktopTests
{
namespace
{

double Linear(double part)
{
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour)
{
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
           0.0722 * Linear(colour.blueF());
}

} // namespace

double Contrast(const QColor& one, const QColor& other)
{
    const double first = Luminance(one);
    const double second = Luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

double MostContrast(const QImage& picture, const QColor& ground)
{
    double most = 1;
    for (int y = 0; y < picture.height(); ++y)
    {
        for (int x = 0; x < picture.width(); ++x)
            most = std::max(most, Contrast(ground, picture.pixelColor(x, y)));
    }
    return most;
}

} // namespace DesktopTests
