#pragma once

#include "tests/reference_host/document/FlatDrawing.h"

#include "reference_host/document/picture/DrawingPicture.h"

#include <cstddef>
#include <string>
#include <vector>

/// A drawing that was opened, with its picture.
struct ShownDrawing
{
    explicit ShownDrawing(OpenedDrawing drawing);

    OpenedDrawing opened;
    ReferenceHost::DrawingPicture picture;

    /// A shape of the first page, counted from 0.
    [[nodiscard]] const ReferenceHost::ShapePicture& Shape(std::size_t index = 0) const;
};

/// Opens a drawing with these shapes on its one page.
[[nodiscard]] ShownDrawing ShowShapes(const std::string& shapes);

/// The parts of a shape as they lie on the page, those that are not filled marked.
[[nodiscard]] std::vector<std::string> PartsOnPage(const ReferenceHost::ShapePicture& shape);
