#pragma once

#include "host/colour/CLR_COLORSPEC.h"
#include "host/utils/OvxStringT.h"
#include "reference_host/document/DrawingObject.h"
#include "reference_host/document/TextUnit.h"

#include <unordered_map>
#include <vector>

namespace Styles
{
class Style;
}

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

    friend bool operator==(const ShapeLook&, const ShapeLook&) = default;
};

/// Reads what shapes look like. A canvas draws thousands of them, more than can be handed in to panels one by
/// one; this is its view of their styles. It makes no styles and changes none.
///
/// Shapes that the file gives one style each would be read again and again: what one of them showed is kept
/// for the others until Forget().
class LookReader
{
public:
    /// The effective values of a shape and of its text. What nothing sets has the defaults above. `object` is
    /// no group.
    [[nodiscard]] ShapeLook Read(const ReferenceHost::DrawingObject& object);

    /// Styles may have changed: everything is read anew from now on.
    void Forget();

private:
    struct GraphicLook
    {
        InsideLook inside;
        LineLook line;
    };

    // By styles, which nobody may have let go since they were read.
    std::unordered_map<const Styles::Style*, GraphicLook> graphics;
    std::unordered_map<const Styles::Style*, ParagraphLook> paragraphs;
    std::unordered_map<const Styles::Style*, RunLook> runs;
};

} // namespace Workbench
