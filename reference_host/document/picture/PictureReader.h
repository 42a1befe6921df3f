#pragma once

#include "reference_host/document/DrawingData.h"
#include "reference_host/document/ProgressMeter.h"
#include "reference_host/document/XmlNames.h"
#include "reference_host/document/picture/DrawingPicture.h"
#include "reference_host/document/picture/PackagePictures.h"
#include "reference_host/document/picture/RunTexts.h"
#include "reference_host/document/picture/StyleDetails.h"

#include <pugixml.hpp>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace ReferenceHost
{

/// Reads what a drawing looks like out of the bytes of its file.
class PictureReader
{
public:
    /// Borrows the drawing.
    explicit PictureReader(DrawingData& drawing);

    /// @throws OperationCancelled
    [[nodiscard]] DrawingPicture Read(const ProgressSpan& whole);

private:
    using Tree = std::unique_ptr<pugi::xml_document>;

    void ReadStylesOf(pugi::xml_node root);
    void ReadPages(pugi::xml_node root);
    void ReadPage(pugi::xml_node element, PagePicture& page);
    void ReadShapes(pugi::xml_node container, PagePicture& page);
    void ReadShape(pugi::xml_node element, DrawingObject& object, PagePicture& page);
    void FindImage(pugi::xml_node frame, ShapePicture& shape);
    void MeasurePage(pugi::xml_node element, PagePicture& page);

    DrawingData& data;
    std::string_view content; ///< The XML text that the places of objects are in.
    std::unordered_map<std::size_t, DrawingObject*> objectsByPlace;
    XmlNames names;
    PackagePictures pictures;
    StyleDetails details;
    RunTexts runTexts;
    std::unordered_map<std::string, Point> layoutSizes;           ///< Of page layouts by their names.
    std::unordered_map<std::string, std::string> layoutsByMaster; ///< Of master pages by their names.
    DrawingPicture picture;
    ProgressSpan progress; ///< Of the content.
};

} // namespace ReferenceHost
