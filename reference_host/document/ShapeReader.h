#pragma once

#include "reference_host/document/CascadeStyles.h"
#include "reference_host/document/ContentLimits.h"
#include "reference_host/document/DrawingObject.h"
#include "reference_host/document/DrawingPage.h"
#include "reference_host/document/ProgressMeter.h"
#include "reference_host/document/StyleRecord.h"
#include "reference_host/document/TextReader.h"
#include "reference_host/document/Warnings.h"
#include "reference_host/document/XmlNames.h"

#include "host/style_model/Style.h"

#include <pugixml.hpp>

#include <cstddef>
#include <deque>
#include <string_view>
#include <vector>

namespace ReferenceHost
{

/// Reads the pages of a drawing with their shapes and groups.
class ShapeReader
{
public:
    /// Borrows everything but the label, which names the file in errors. The named styles are complete; `xml`
    /// is the text that the tree was made of.
    ShapeReader(StyleCatalogue& styles, CascadeStyles& cascadeStyles, std::string_view xml,
                XmlNames& xmlNames, Warnings& reports, const std::string& label);

    /// Reads all pages in `drawing`, the element office:drawing, whose scope is in force.
    ///
    /// @throws DocumentError when there are more than ContentLimits allow.
    void Read(pugi::xml_node drawing, std::vector<DrawingPage>& pages, std::deque<DrawingObject>& objects,
              const ProgressSpan& reading);

    /// The same of the master pages in office:master-styles.
    void ReadMasters(pugi::xml_node masters, std::vector<DrawingPage>& pages,
                     std::deque<DrawingObject>& objects);

private:
    /// Where shapes are added: to a page or to a group on it.
    struct Place
    {
        DrawingPage* page;
        DrawingObject* group; ///< Null directly on the page.
        std::vector<DrawingObject*>* members;
    };

    void ReadPages(pugi::xml_node container, const XmlName& pageElement, std::vector<DrawingPage>& pages,
                   std::deque<DrawingObject>& objects);
    void ReadMembers(pugi::xml_node container, const Place& place);
    void ReadMember(pugi::xml_node element, const Place& place);
    DrawingObject& AddObject(pugi::xml_node element, const Place& place);
    void ReadStyle(pugi::xml_node element, DrawingObject& object, std::string_view styleName,
                   std::string_view textStyleName);
    void ReportMissingParent(const StyleRecord& automatic);

    StyleCatalogue& catalogue;
    CascadeStyles& cascades;
    XmlNames& names;
    Warnings& warnings;
    ContentLimits limits;
    TextReader text;
    std::string_view source;
    std::deque<DrawingObject>* allObjects = nullptr;
    ProgressSpan progress; ///< Of the text from `start` on.
    std::size_t start = 0;
};

} // namespace ReferenceHost
