#include "tests/reference_host/document/picture/ShownDrawing.h"

#include "tests/reference_host/document/picture/ContourText.h"

#include <utility>

ShownDrawing::ShownDrawing(OpenedDrawing drawing)
    : opened(std::move(drawing)), picture(opened.drawing->ReadPicture())
{
}

const ReferenceHost::ShapePicture& ShownDrawing::Shape(std::size_t index) const
{
    return picture.pages.at(0).shapes.at(index);
}

ShownDrawing ShowShapes(const std::string& shapes)
{
    return ShownDrawing(FlatDrawing().Page(shapes).Open());
}

std::vector<std::string> PartsOnPage(const ReferenceHost::ShapePicture& shape)
{
    std::vector<std::string> texts;
    for (const ReferenceHost::ShapePart& part : shape.parts)
        texts.push_back(TextOf(Mapped(part.contour, shape.toPage)) + (part.isFilled ? "" : " unfilled"));
    return texts;
}
