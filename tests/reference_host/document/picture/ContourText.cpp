#include "tests/reference_host/document/picture/ContourText.h"

#include <cmath>
#include <sstream>

namespace
{

std::string NumberText(double number)
{
    // Adding 0 turns a negative zero into a plain one.
    const double rounded = std::round(number * 100) / 100 + 0.0;
    std::ostringstream text;
    text.precision(12);
    text << rounded;
    return text.str();
}

} // namespace

std::string TextOf(ReferenceHost::Point point)
{
    return NumberText(point.x) + "," + NumberText(point.y);
}

std::string TextOf(const ReferenceHost::Box& box)
{
    return TextOf(ReferenceHost::Point{box.left, box.top}) + " " + NumberText(box.width) + "x" +
           NumberText(box.height);
}

std::string TextOf(const ReferenceHost::Contour& contour)
{
    using Kind = ReferenceHost::ContourStep::Kind;
    std::string text;
    for (const ReferenceHost::ContourStep& step : contour)
    {
        if (!text.empty())
            text += ' ';
        if (step.kind == Kind::Move)
            text += "M" + TextOf(step.end);
        else if (step.kind == Kind::Line)
            text += "L" + TextOf(step.end);
        else if (step.kind == Kind::Curve)
            text += "C" + TextOf(step.control1) + " " + TextOf(step.control2) + " " + TextOf(step.end);
        else
            text += "Z";
    }
    return text;
}
