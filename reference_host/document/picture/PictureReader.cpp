#include "reference_host/document/picture/PictureReader.h"

#include "reference_host/document/Measures.h"
#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/XmlSource.h"
#include "reference_host/document/XmlTree.h"
#include "reference_host/document/picture/DefinitionReader.h"
#include "reference_host/document/picture/MasterShapes.h"
#include "reference_host/document/picture/ShapeGeometry.h"

#include "host/utils/Utf8.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace ReferenceHost
{

namespace
{

// What a page measures where the file does not say: A4, upright.
constexpr double kPageWidth = 21000;
constexpr double kPageHeight = 29700;

} // namespace

PictureReader::PictureReader(DrawingData& drawing)
    : data(drawing),
      content(drawing.file.form == DrawingForm::Flat ? drawing.file.bytes : drawing.file.content),
      pictures(drawing.file),
      runTexts(names),
      labels(names)
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
    const std::string& stylesText = data.file.styles;
    const Tree styles =
        stylesText.empty() ? nullptr : ParseCheckedXml(stylesText, data.file.label + ", styles.xml");
    if (styles != nullptr)
        ReadMasters(styles->document_element());
    ReadMasters(pages->document_element());
    ReadStylesOf(pages->document_element());
    if (styles != nullptr)
        ReadStylesOf(styles->document_element());
    if (styles != nullptr)
        ReadMasterShapes(styles->document_element(), stylesText);
    else
        ReadMasterShapes(pages->document_element(), content);
    ReadPages(pages->document_element());
    return std::move(picture);
}

void PictureReader::ReadStylesOf(pugi::xml_node root)
{
    const XmlNames::Scope rootScope(names, root);
    details.AddStyles(root, names);
    labels.AddStyles(root);
    ReadDefinitions(root, names, pictures, picture.definitions);
}

void PictureReader::ReadMasters(pugi::xml_node root)
{
    const XmlNames::Scope rootScope(names, root);
    masterDetails.AddStyles(root, names);
    ForEachChild(root, names, {Odf::kOffice, "automatic-styles"},
                 [&](pugi::xml_node container)
                 {
                     ForEachChild(container, names, {Odf::kStyle, "page-layout"},
                                  [&](pugi::xml_node layout) { ReadLayout(layout); });
                 });
    ForEachChild(
        root, names, {Odf::kOffice, "master-styles"},
        [&](pugi::xml_node container)
        {
            ForEachChild(
                container, names, {Odf::kStyle, "master-page"},
                [&](pugi::xml_node master)
                {
                    masters.try_emplace(
                        std::string(names.Attribute(master, {Odf::kStyle, "name"})),
                        Master{std::string(names.Attribute(master, {Odf::kStyle, "page-layout-name"})),
                               std::string(names.Attribute(master, {Odf::kDraw, "style-name"})), nullptr});
                });
        });
}

void PictureReader::ReadLayout(pugi::xml_node layout)
{
    const std::string name(names.Attribute(layout, {Odf::kStyle, "name"}));
    ForEachChild(
        layout, names, {Odf::kStyle, "page-layout-properties"},
        [&](pugi::xml_node element)
        {
            const auto length = [&](std::string_view local, double otherwise) -> double
            {
                const std::optional<int> given = ParseLength(names.Attribute(element, {Odf::kFo, local}));
                return given ? *given : otherwise;
            };
            const double margin = length("margin", 0);
            const double left = length("margin-left", margin);
            const double top = length("margin-top", margin);
            const Point size{length("page-width", 0), length("page-height", 0)};
            layouts.try_emplace(name, Layout{size,
                                             {left, top, size.x - left - length("margin-right", margin),
                                              size.y - top - length("margin-bottom", margin)}});
        });
}

void PictureReader::ReadPages(pugi::xml_node root)
{
    picture.pages.reserve(data.pages.size());
    const XmlNames::Scope rootScope(names, root);
    const auto readPage = [&](pugi::xml_node page) { ReadPage(page, picture.pages.emplace_back()); };
    ForEachChild(root, names, {Odf::kOffice, "body"},
                 [&](pugi::xml_node body)
                 {
                     ForEachChild(body, names, {Odf::kOffice, "drawing"},
                                  [&](pugi::xml_node drawing) {
                                      ForEachChild(drawing, names, {Odf::kDraw, "page"}, readPage);
                                  });
                 });
}

void PictureReader::ReadPage(pugi::xml_node element, PagePicture& page)
{
    const auto found = masters.find(std::string(names.Attribute(element, {Odf::kDraw, "master-page-name"})));
    const Master master = found == masters.end() ? Master() : found->second;
    const auto layout = layouts.find(master.layout);
    page.width = kPageWidth;
    page.height = kPageHeight;
    Box inner{0, 0, kPageWidth, kPageHeight};
    if (layout != layouts.end() && layout->second.size.x > 0 && layout->second.size.y > 0)
    {
        page.width = layout->second.size.x;
        page.height = layout->second.size.y;
        inner = layout->second.inner;
    }
    page.background = details.FindBackground(names.Attribute(element, {Odf::kDraw, "style-name"}));
    if (page.background.kind == PageBackground::Kind::None)
        page.background = masterDetails.FindBackground(master.style);
    page.background.box = page.background.isWholePage ? Box{0, 0, page.width, page.height} : inner;
    page.behind = master.shapes;
    ReadShapes(element, page);
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
            ReadShape(element, *object->second, details, page.shapes);
    }
}

void PictureReader::ReadMasterShapes(pugi::xml_node root, std::string_view text)
{
    const XmlNames::Scope rootScope(names, root);
    picture.masters = std::make_shared<MasterShapes>(data);
    picture.masters->Read(root, text, names);
    ForEachChild(root, names, {Odf::kOffice, "master-styles"},
                 [&](pugi::xml_node container)
                 {
                     ForEachChild(
                         container, names, {Odf::kStyle, "master-page"},
                         [&](pugi::xml_node element)
                         {
                             auto& shapes =
                                 masters[std::string(names.Attribute(element, {Odf::kStyle, "name"}))].shapes;
                             // Of two with one name the first one counts.
                             if (shapes != nullptr)
                                 return;
                             shapes = std::make_shared<ShapePictures>();
                             ReadMasterShapes(element, text, *shapes);
                         });
                 });
}

void PictureReader::ReadMasterShapes(pugi::xml_node container, std::string_view text, ShapePictures& shapes)
{
    for (const pugi::xml_node element : container.children())
    {
        if (element.type() != pugi::node_element)
            continue;
        const XmlNames::Scope scope(names, element);
        const XmlName name = names.Of(element);
        // What presentations put titles and notes in says nothing by itself.
        if (names.HasAttribute(element, {Odf::kPresentation, "class"}))
            continue;
        if (name == XmlName{Odf::kDraw, "a"} || name == XmlName{Odf::kDraw, "g"})
            ReadMasterShapes(element, text, shapes);
        else if (DrawingObject* const object = picture.masters->FindAt(PlaceOfElement(element, text)))
            ReadShape(element, *object, masterDetails, shapes);
    }
}

void PictureReader::ReadShape(pugi::xml_node element, DrawingObject& object, StyleDetails& styles,
                              ShapePictures& shapes)
{
    ShapePicture& shape = shapes.emplace_back();
    shape.object = &object;
    shape.details = styles.Find(names.Attribute(element, {Odf::kDraw, "style-name"}));
    ReadGeometry(element, names, shape);
    shape.runTexts = runTexts.Read(element);
    shape.labels = labels.Read(element);
    FindImage(element, shape);
    shape.placeholder = FindPlaceholder(element, object);
}

void PictureReader::FindImage(pugi::xml_node frame, ShapePicture& shape)
{
    if (names.Of(frame) != XmlName{Odf::kDraw, "frame"})
        return;
    // The first one is what its author prefers.
    ForEachChild(frame, names, {Odf::kDraw, "image"},
                 [&](pugi::xml_node image)
                 {
                     if (shape.image == nullptr)
                         shape.image = pictures.Find(image, names);
                 });
}

/// Frames hold what can be shown, pictures and text, and what cannot; controls and the like never can.
OvxStringT PictureReader::FindPlaceholder(pugi::xml_node element, const DrawingObject& object)
{
    constexpr std::array<std::string_view, 3> kNeverShown{"control", "page-thumbnail", "scene"};
    const std::string_view kind = names.Of(element).local;
    const bool isFrame = kind == "frame";
    if (!isFrame && std::ranges::find(kNeverShown, kind) == kNeverShown.end())
        return {};
    OvxStringT text = object.GetName();
    for (const pugi::xml_node child : element.children())
    {
        if (!isFrame || child.type() != pugi::node_element)
            continue;
        const XmlNames::Scope scope(names, child);
        const XmlName name = names.Of(child);
        if (name == XmlName{Odf::kDraw, "text-box"})
            return {};
        const std::string_view reference = names.Attribute(child, {Odf::kXlink, "href"});
        if (text.empty() && !reference.empty())
            text = OvxUtils::FromUtf8(reference.substr(reference.rfind('/') + 1));
        else if (text.empty())
            text = OvxUtils::FromUtf8(name.local);
    }
    return text.empty() ? OvxUtils::FromUtf8(kind) : text;
}

} // namespace ReferenceHost
