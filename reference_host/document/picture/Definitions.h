#pragma once

#include "reference_host/document/picture/Geometry.h"

#include "host/colour/CLR_COLORSPEC.h"
#include "host/utils/OvxStringT.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace ReferenceHost
{

/// Two or more colours that go over into each other.
struct GradientDefinition
{
    enum class Kind
    {
        Linear,
        Axial, ///< Both ways from the middle.
        Radial,
        Ellipsoid,
        Square,
        Rectangular
    };

    struct Stop
    {
        double place = 0; ///< From 0, the start, to 1.
        CLR_COLORSPEC::Rgb colour;

        friend bool operator==(const Stop&, const Stop&) = default;
    };

    Kind kind = Kind::Linear;
    std::vector<Stop> stops; ///< In order; at least two.
    double angle = 0;        ///< Degrees, counterclockwise on the page; 0 goes from top to bottom.
    double border = 0;       ///< The share, 0 to 1, that keeps the start colour.
    Point centre{0.5, 0.5};  ///< As shares of the box; not for linear and axial ones.
};

/// Parallel lines, of one to three directions.
struct HatchDefinition
{
    int directions = 1; ///< 1 to 3: across at 90 degrees is the second, at 45 the third.
    CLR_COLORSPEC::Rgb colour;
    double distance = 0; ///< Between two lines, hundredths of a millimetre; never 0 in a definition.
    double angle = 0;    ///< Degrees, counterclockwise on the page.
};

/// A length that may stand for a share of the line's width.
struct DashLength
{
    double length = 0; ///< Hundredths of a millimetre, or the share: 2 is twice the width.
    bool isOfWidth = false;

    [[nodiscard]] double At(double lineWidth) const noexcept
    {
        return isOfWidth ? length * lineWidth : length;
    }

    friend bool operator==(const DashLength&, const DashLength&) = default;
};

/// Dots and gaps along a line. A dot without length is as long as the line is wide.
struct DashDefinition
{
    bool isRound = false;
    int firstDots = 0;
    DashLength firstLength;
    int secondDots = 0;
    DashLength secondLength;
    DashLength distance; ///< Behind each dot.
};

/// What a line may end in: it points up, its tip at the top of the view box.
struct MarkerDefinition
{
    Box viewBox;
    Contour contour;
};

/// The bytes of a picture file, as they lie in the drawing.
using PictureBytes = std::shared_ptr<const std::string>;

/// What a drawing defines beside its styles, by what people call it: the names that styles hold.
struct Definitions
{
    std::map<OvxStringT, GradientDefinition> gradients;
    std::map<OvxStringT, HatchDefinition> hatches;

    /// How opaque an inside is from place to place, in greys: white hides what is behind it. No panel edits
    /// these; their names are as they stand in the file.
    std::map<OvxStringT, GradientDefinition> opacities;

    std::map<OvxStringT, PictureBytes> bitmaps; ///< None null; without those that cannot be found.
    std::map<OvxStringT, DashDefinition> dashes;
    std::map<OvxStringT, MarkerDefinition> markers;
};

} // namespace ReferenceHost
