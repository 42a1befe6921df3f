#pragma once

#include "host/colour/CLR_COLORSPEC.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/document/Drawing.h"
#include "reference_host/document/DrawingObject.h"
#include "reference_host/document/TextUnit.h"

#include <vector>

namespace Workbench
{

using LookColour = CLR_COLORSPEC::Rgb;

/// What the inside of a shape looks like.
struct InsideLook
{
    enum class Kind
    {
        None,
        Solid,
        Gradient,
        Hatch,
        Bitmap
    };

    Kind kind = Kind::None;
    LookColour colour;
    int transparency = 0;  ///< Percent.
    OvxStringT definition; ///< The name of the gradient, hatch or bitmap; empty for the other kinds.

    friend bool operator==(const InsideLook&, const InsideLook&) = default;
};

/// What the line around a shape looks like.
struct LineLook
{
    enum class Kind
    {
        None,
        Solid,
        Dashed
    };

    enum class Join
    {
        Miter,
        Round,
        Bevel
    };

    enum class Cap
    {
        Butt,
        Round,
        Square
    };

    Kind kind = Kind::None;
    LookColour colour;
    int width = 0;        ///< Hundredths of a millimetre; 0 is as thin as can be seen.
    int transparency = 0; ///< Percent.
    OvxStringT dash;      ///< The name of the dash; empty without one.
    Join join = Join::Round;
    Cap cap = Cap::Butt;
    OvxStringT startArrow; ///< The name of the marker; empty without one.
    OvxStringT endArrow;   ///< The name of the marker; empty without one.

    friend bool operator==(const LineLook&, const LineLook&) = default;
};

/// What a run of text looks like.
struct RunLook
{
    OvxStringT font; ///< A family, or several separated by commas; empty for any.
    int size = 180;  ///< Tenths of a point.
    int weight = 400;
    bool isItalic = false;
    bool isUnderlined = false;
    bool isStruckThrough = false;
    LookColour colour;
    int letterSpacing = 0; ///< Hundredths of a millimetre.

    friend bool operator==(const RunLook&, const RunLook&) = default;
};

/// How a paragraph is set. Lengths are hundredths of a millimetre.
struct ParagraphLook
{
    enum class Align
    {
        Start,
        End,
        Left,
        Right,
        Centre,
        Justify
    };

    Align align = Align::Start;
    int leftIndent = 0;
    int rightIndent = 0;
    int firstLineIndent = 0;
    int spaceBefore = 0;
    int spaceAfter = 0;
    int lineSpacing = 100; ///< Percent.

    friend bool operator==(const ParagraphLook&, const ParagraphLook&) = default;
};

/// What one shape looks like.
struct ShapeLook
{
    InsideLook inside;
    LineLook line;
    std::vector<ParagraphLook> paragraphs; ///< One for each paragraph of the object.
    std::vector<RunLook> runs;             ///< One for each run of the object.
};

/// The effective values of a shape and of its text as they are now. What nothing sets has the defaults above.
/// `object` is no group.
///
/// A canvas draws thousands of objects, more than can be handed in to panels one by one; this is its view of
/// their styles, and it reads only.
[[nodiscard]] ShapeLook LookOf(ReferenceHost::DrawingObject& object);

} // namespace Workbench
