#include "reference_host/document/picture/PictureReader.h"

#include "reference_host/document/Measures.h"
#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/XmlSource.h"
#include "reference_host/document/XmlTree.h"
#include "reference_host/document/picture/DefinitionReader.h"
#include "reference_host/document/picture/ShapeGeometry.h"

#include <utility>

namespace ReferenceHost
{

namespace
{

// What a page measures where the file does not say: A4, upright.
constexpr double kPageWidth = 21000;
constexpr double kPageHeight = 29700;

/// Calls `visit` for each element below `parent` that is called `name`, while its scope is in force.
template <class Visitor>
void ForEach(pugi::xml_node parent, XmlNames& names, const XmlName& name, const Visitor& visit)
{
    for (const pugi::xml_node child : parent.children())
    {
        const XmlNames::Scope scope(names, child);
        if (names.Of(child) == name)
            visit(child);
    }
}

} // namespace

PictureReader::PictureReader(DrawingData& drawing)
    : data(drawing),
      content(drawing.file.form == DrawingForm::Flat ? drawing.file.bytes : drawing.file.content),
      pictures(drawing.file),
      runTexts(names)
{
    for (DrawingObject& object : data.objects)
        objectsByPlace.emplace(object.GetPlace(), &object);
}

DrawingPicture PictureReader::Read(const ProgressSpan& whole)
{
    constexpr double kParsed = 0.15;
    // The texts are those that were checked when the drawing was opened.
    const Tree pages = ParseCheckedXml(content, data.file.label, whole.Part(0, kParsed));
    progress = whole.Part(ProgressPhase::Picture, kParsed, 1);
    progress.Start(content.size());
    if (!data.file.styles.empty())
    {
        const Tree styles = ParseCheckedXml(data.file.styles, data.file.label + ", styles.xml");
        ReadStylesOf(styles->document_element());
    }
    ReadStylesOf(pages->document_element());
    ReadPages(pages->document_element());
    return std::move(picture);
}

void PictureReader::ReadStylesOf(pugi::xml_node root)
{
    const XmlNames::Scope rootScope(names, root);
    details.AddStyles(root, names);
    ReadDefinitions(root, names, pictures, picture.definitions);
    const auto readLayout = [&](pugi::xml_node layout)
    {
        const std::string name(names.Attribute(layout, {Odf::kStyle, "name"}));
        ForEach(layout, names, {Odf::kStyle, "page-layout-properties"},
                [&](pugi::xml_node element)
                {
                    const auto length = [&](std::string_view local) {
                        return ParseLength(names.Attribute(element, {Odf::kFo, local})).value_or(0);
                    };
                    layoutSizes.try_emplace(name, Point{static_cast<double>(length("page-width")),
                                                        static_cast<double>(length("page-height"))});
                });
    };
    ForEach(root, names, {Odf::kOffice, "automatic-styles"},
            [&](pugi::xml_node container) {
                ForEach(container, names, {Odf::kStyle, "page-layout"}, readLayout);
            });
    ForEach(root, names, {Odf::kOffice, "master-styles"},
            [&](pugi::xml_node container)
            {
                ForEach(container, names, {Odf::kStyle, "master-page"},
                        [&](pugi::xml_node master)
                        {
                            layoutsByMaster.try_emplace(
                                std::string(names.Attribute(master, {Odf::kStyle, "name"})),
                                names.Attribute(master, {Odf::kStyle, "page-layout-name"}));
                        });
            });
}

void PictureReader::ReadPages(pugi::xml_node root)
{
    picture.pages.reserve(data.pages.size());
    const XmlNames::Scope rootScope(names, root);
    const auto readPage = [&](pugi::xml_node page) { ReadPage(page, picture.pages.emplace_back()); };
    ForEach(root, names, {Odf::kOffice, "body"},
            [&](pugi::xml_node body)
            {
                ForEach(body, names, {Odf::kOffice, "drawing"},
                        [&](pugi::xml_node drawing) {
                            ForEach(drawing, names, {Odf::kDraw, "page"}, readPage);
                        });
            });
}

void PictureReader::ReadPage(pugi::xml_node element, PagePicture& page)
{
    MeasurePage(element, page);
    ReadShapes(element, page);
}

void PictureReader::MeasurePage(pugi::xml_node element, PagePicture& page)
{
    page.width = kPageWidth;
    page.height = kPageHeight;
    const auto layout =
        layoutsByMaster.find(std::string(names.Attribute(element, {Odf::kDraw, "master-page-name"})));
    if (layout == layoutsByMaster.end())
        return;
    const auto size = layoutSizes.find(layout->second);
    if (size == layoutSizes.end() || size->second.x <= 0 || size->second.y <= 0)
        return;
    page.width = size->second.x;
    page.height = size->second.y;
}

void PictureReader::ReadShapes(pugi::xml_node container, PagePicture& page)
{
    for (const pugi::xml_node element : container.children())
    {
        if (element.type() != pugi::node_element)
            continue;
        const XmlNames::Scope scope(names, element);
        const XmlName name = names.Of(element);
        if (name == XmlName{Odf::kDraw, "a"} || name == XmlName{Odf::kDraw, "g"})
        {
            ReadShapes(element, page);
            continue;
        }
        const std::size_t place = PlaceOfElement(element, content);
        progress.Reach(place);
        const auto object = objectsByPlace.find(place);
        if (object != objectsByPlace.end())
            ReadShape(element, *object->second, page);
    }
}

void PictureReader::ReadShape(pugi::xml_node element, DrawingObject& object, PagePicture& page)
{
    ShapePicture& shape = page.shapes.emplace_back();
    shape.object = &object;
    ReadGeometry(element, names, shape);
    shape.details = details.Find(names.Attribute(element, {Odf::kDraw, "style-name"}));
    shape.runTexts = runTexts.Read(element);
    FindImage(element, shape);
}

void PictureReader::FindImage(pugi::xml_node frame, ShapePicture& shape)
{
    if (names.Of(frame) != XmlName{Odf::kDraw, "frame"})
        return;
    // The first one is what its author prefers.
    ForEach(frame, names, {Odf::kDraw, "image"},
            [&](pugi::xml_node image)
            {
                if (shape.image == nullptr)
                    shape.image = pictures.Find(image, names);
            });
}

} // namespace ReferenceHost
