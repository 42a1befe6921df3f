#pragma once

#include "reference_host/document/CascadeStyles.h"
#include "reference_host/document/DrawingData.h"
#include "reference_host/document/DrawingObject.h"
#include "reference_host/document/DrawingPage.h"
#include "reference_host/document/StyleRecord.h"
#include "reference_host/document/XmlNames.h"

#include <pugixml.hpp>

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace ReferenceHost
{

/// The shapes of master pages, with their styles. They are seen and never edited, so that they are no objects
/// of the drawing.
class MasterShapes
{
public:
    /// Borrows the drawing.
    explicit MasterShapes(DrawingData& drawing);
    MasterShapes(const MasterShapes&) = delete;
    MasterShapes& operator=(const MasterShapes&) = delete;

    /// Reads the shapes of all master pages below `root`, the root element of the XML text that has them,
    /// whose scope is in force. To be called once.
    void Read(pugi::xml_node root, std::string_view text, XmlNames& names);

    /// The object whose element begins there in that text; null for none.
    [[nodiscard]] DrawingObject* FindAt(std::size_t place);

private:
    void ReadStyles(pugi::xml_node root, std::string_view text, XmlNames& names);
    void MakeStyles();

    DrawingData& data;
    std::vector<std::string> warnings; ///< Read by nobody: they are about what cannot be edited.
    StyleCatalogue catalogue;          ///< The automatic styles beside the named ones of a package.
    CascadeStyles cascades;
    std::vector<DrawingPage> pages;
    std::deque<DrawingObject> objects; ///< In the order of the text.
};

} // namespace ReferenceHost
