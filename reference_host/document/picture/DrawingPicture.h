#pragma once

#include "reference_host/document/picture/Definitions.h"
#include "reference_host/document/picture/Geometry.h"

#include "host/Export.h"
#include "host/utils/OvxStringT.h"

#include <cstddef>
#include <vector>

namespace ReferenceHost
{

class DrawingObject;

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
    std::vector<OvxStringT> runTexts; ///< One for each run of the object; line breaks are L'\n', tabs L'\t'.
    ShapeDetails details;
};

/// One page with its shapes in the order in which they are drawn.
struct PagePicture
{
    double width = 0;
    double height = 0;
    std::vector<ShapePicture> shapes; ///< Those in groups among them.
};

/// What a drawing looks like, apart from the styles.
struct DrawingPicture
{
    std::vector<PagePicture> pages; ///< As many as the drawing has.
    Definitions definitions;
};

} // namespace ReferenceHost
