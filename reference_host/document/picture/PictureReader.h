#pragma once

#include "reference_host/document/DrawingData.h"
#include "reference_host/document/ProgressMeter.h"
#include "reference_host/document/XmlNames.h"
#include "reference_host/document/picture/DrawingPicture.h"
#include "reference_host/document/picture/ListLabels.h"
#include "reference_host/document/picture/PackagePictures.h"
#include "reference_host/document/picture/RunTexts.h"
#include "reference_host/document/picture/StyleDetails.h"

#include <pugixml.hpp>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

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
    using ShapePictures = std::vector<ShapePicture>;
    using Tree = std::unique_ptr<pugi::xml_document>;

    struct Layout
    {
        Point size;
        Box inner; ///< Within the margins.
    };

    struct Master
    {
        std::string layout;
        std::string style;
        std::shared_ptr<ShapePictures> shapes; ///< Null without any.
    };

    void ReadStylesOf(pugi::xml_node root);
    void ReadMasters(pugi::xml_node root);
    void ReadLayout(pugi::xml_node layout);
    void ReadPages(pugi::xml_node root);
    void ReadPage(pugi::xml_node element, PagePicture& page);
    void ReadShapes(pugi::xml_node container, PagePicture& page);
    void ReadShape(pugi::xml_node element, DrawingObject& object, StyleDetails& styles,
                   ShapePictures& shapes);
    void ReadMasterShapes(pugi::xml_node root, std::string_view text);
    void ReadMasterShapes(pugi::xml_node container, std::string_view text, ShapePictures& shapes);
    void FindImage(pugi::xml_node frame, ShapePicture& shape);
    [[nodiscard]] OvxStringT FindPlaceholder(pugi::xml_node element, const DrawingObject& object);

    DrawingData& data;
    std::string_view content; ///< The XML text that the places of objects are in.
    std::unordered_map<std::size_t, DrawingObject*> objectsByPlace;
    XmlNames names;
    PackagePictures pictures;
    StyleDetails details;
    StyleDetails masterDetails; ///< What master pages refer to, whose automatic styles are their own.
    RunTexts runTexts;
    ListLabels labels;
    std::unordered_map<std::string, Layout> layouts; ///< By their names.
    std::unordered_map<std::string, Master> masters; ///< By their names.
    DrawingPicture picture;
    ProgressSpan progress; ///< Of the content.
};

} // namespace ReferenceHost
