#pragma once

#include "reference_host/document/picture/Definitions.h"
#include "reference_host/document/picture/Geometry.h"

#include "host/colour/CLR_COLORSPEC.h"
#include "host/utils/OvxStringT.h"

#include <memory>
#include <optional>
#include <vector>

namespace ReferenceHost
{

class DrawingObject;
class MasterShapes;

/// What the styles of a shape tell about its looks beyond the properties that panels edit, as the file says.
struct ShapeDetails
{
    enum class VerticalAlign
    {
        Top,
        Middle,
        Bottom
    };

    enum class HorizontalAlign
    {
        AsParagraph,
        Left,
        Centre,
        Right
    };

    enum class BitmapFit
    {
        Tile,
        Stretch,
        Once
    };

    /// What a shape throws on what is behind it, as if it were cut out of one colour.
    struct Shadow
    {
        Point offset;
        CLR_COLORSPEC::Rgb colour;
        int transparency = 0; ///< Percent.

        friend bool operator==(const Shadow&, const Shadow&) = default;
    };

    double paddingLeft = 0;
    double paddingTop = 0;
    double paddingRight = 0;
    double paddingBottom = 0;
    VerticalAlign vertical = VerticalAlign::Top;
    HorizontalAlign horizontal = HorizontalAlign::AsParagraph; ///< Of the block of text as a whole.
    bool isWrapped = true;                                     ///< Text keeps within the width of its area.
    bool isFillingHatches = false;                             ///< The fill colour shows behind a hatch.
    BitmapFit bitmapFit = BitmapFit::Tile;
    Point bitmapSize;           ///< Of a bitmap that is not stretched; its own size where a side is 0.
    double startArrowWidth = 0; ///< 0 where the file does not say.
    double endArrowWidth = 0;   ///< 0 where the file does not say.
    bool isStartArrowCentred = false;
    bool isEndArrowCentred = false;
    Point bitmapAnchor{0.5, 0.5}; ///< Where a bitmap that is not stretched stands, as shares of the box.
    int gradientSteps = 0;        ///< How many colours a gradient has; 0 for as many as can be seen.
    OvxStringT opacity;           ///< The name of an opacity; empty without one.
    std::optional<Shadow> shadow;

    // Of a measure; a distance goes to the left of who walks from the start to the end.
    double measureDistance = 800; ///< From what is measured to the line.
    double guideOverhang = 200;   ///< How far guides reach beyond the line.
    double guideGap = 0;          ///< Between what is measured and its guides.
};

/// What stands before a paragraph of a list.
struct ListLabel
{
    OvxStringT text;      ///< A bullet or a number; empty for a paragraph that only continues its item.
    double indent = 0;    ///< Where the paragraph begins.
    double room = 0;      ///< How far before that the label begins.
    double sizeShare = 1; ///< Of the size of the text.
};

/// One shape of a page, with what is needed to draw it.
struct ShapePicture
{
    DrawingObject* object = nullptr; ///< Borrowed from the drawing; never null and no group.
    Transform toPage;                ///< From the shape's own coordinates, in which all the rest is.
    Box box;
    std::vector<ShapePart> parts; ///< None for a shape that cannot be seen.
    Box textArea;
    bool isLine = false;              ///< It may end in arrows and is filled only where it is closed.
    bool isExact = true;              ///< False for an outline that stands for something else.
    PictureBytes image;               ///< Null without one. It fills the box.
    OvxStringT placeholder;           ///< What to write where the content cannot be shown; empty otherwise.
    std::vector<OvxStringT> runTexts; ///< One for each run of the object; line breaks are L'\n', tabs L'\t'.
    std::vector<ListLabel> labels;    ///< One for each paragraph of the object; none without lists.
    double textAngle = 0;             ///< Degrees, clockwise, about the middle of the text area.
    bool isTextAbove = false;         ///< The text of a line stands on it, not across it.
    ShapeDetails details;
};

/// What a page shows behind its shapes.
struct PageBackground
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
    CLR_COLORSPEC::Rgb colour;
    int transparency = 0;     ///< Percent.
    OvxStringT definition;    ///< The name of the gradient, hatch or bitmap; empty for the other kinds.
    bool isWholePage = false; ///< Else it keeps within the margins.
    Box box;                  ///< What it fills.
    ShapeDetails details;
};

/// One page with its shapes in the order in which they are drawn.
struct PagePicture
{
    double width = 0;
    double height = 0;
    PageBackground background;
    std::vector<ShapePicture> shapes; ///< Those in groups among them.

    /// The shapes of its master page, which are drawn below and are no objects of the drawing; null without.
    std::shared_ptr<const std::vector<ShapePicture>> behind;
};

/// What a drawing looks like, apart from the styles.
struct DrawingPicture
{
    std::vector<PagePicture> pages;        ///< As many as the drawing has.
    std::shared_ptr<MasterShapes> masters; ///< Whose the shapes behind pages are; the drawing outlives it.
    Definitions definitions;
};

} // namespace ReferenceHost
