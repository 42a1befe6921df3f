#include "reference_host/document/ShapeReader.h"

#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/StyleParents.h"
#include "reference_host/document/XmlSource.h"

#include "host/utils/Utf8.h"

#include <algorithm>
#include <array>

namespace ReferenceHost
{

namespace
{

/// An element that is an object, and what its kind is called.
struct Kind
{
    XmlName element;
    const wchar_t* name;
};

constexpr std::array<Kind, 17> kKinds{{{{Odf::kDraw, "custom-shape"}, L"custom-shape"},
                                       {{Odf::kDraw, "rect"}, L"rect"},
                                       {{Odf::kDraw, "frame"}, L"frame"},
                                       {{Odf::kDraw, "line"}, L"line"},
                                       {{Odf::kDraw, "connector"}, L"connector"},
                                       {{Odf::kDraw, "ellipse"}, L"ellipse"},
                                       {{Odf::kDraw, "circle"}, L"circle"},
                                       {{Odf::kDraw, "path"}, L"path"},
                                       {{Odf::kDraw, "polygon"}, L"polygon"},
                                       {{Odf::kDraw, "polyline"}, L"polyline"},
                                       {{Odf::kDraw, "regular-polygon"}, L"regular-polygon"},
                                       {{Odf::kDraw, "measure"}, L"measure"},
                                       {{Odf::kDraw, "caption"}, L"caption"},
                                       {{Odf::kDraw, "control"}, L"control"},
                                       {{Odf::kDraw, "page-thumbnail"}, L"page-thumbnail"},
                                       {{Odf::kDraw, "g"}, L"group"},
                                       {{Odf::kDr3d, "scene"}, L"scene"}}};

/// What is read of the start tag of an object, by its place in what comes back.
constexpr std::array<XmlName, 3> kObjectAttributes{
    {{Odf::kDraw, "name"}, {Odf::kDraw, "style-name"}, {Odf::kDraw, "text-style-name"}}};

constexpr XmlName kGroup{Odf::kDraw, "g"};
constexpr XmlName kLink{Odf::kDraw, "a"};
constexpr XmlName kPage{Odf::kDraw, "page"};
constexpr XmlName kMasterPage{Odf::kStyle, "master-page"};

} // namespace

ShapeReader::ShapeReader(StyleCatalogue& styles, CascadeStyles& cascadeStyles, std::string_view xml,
                         XmlNames& xmlNames, Warnings& reports, const std::string& label)
    : catalogue(styles),
      cascades(cascadeStyles),
      names(xmlNames),
      warnings(reports),
      limits(label),
      text(styles, cascadeStyles, xmlNames, reports, limits),
      source(xml)
{
}

void ShapeReader::Read(pugi::xml_node drawing, std::vector<DrawingPage>& pages,
                       std::deque<DrawingObject>& objects, const ProgressSpan& reading)
{
    progress = reading;
    start = PlaceOfElement(drawing, source);
    progress.Start(source.size() - start);
    ReadPages(drawing, kPage, pages, objects);
}

void ShapeReader::ReadMasters(pugi::xml_node masters, std::vector<DrawingPage>& pages,
                              std::deque<DrawingObject>& objects)
{
    ReadPages(masters, kMasterPage, pages, objects);
}

void ShapeReader::ReadPages(pugi::xml_node container, const XmlName& pageElement,
                            std::vector<DrawingPage>& pages, std::deque<DrawingObject>& objects)
{
    allObjects = &objects;
    std::vector<pugi::xml_node> elements;
    for (const pugi::xml_node element : container.children())
    {
        const XmlNames::Scope scope(names, element);
        if (names.Of(element) == pageElement)
            elements.push_back(element);
    }
    // Objects point to their pages.
    pages.resize(elements.size());
    for (std::size_t index = 0; index < elements.size(); ++index)
    {
        const XmlNames::Scope scope(names, elements[index]);
        DrawingPage& page = pages[index];
        page.number = index + 1;
        page.name = OvxUtils::FromUtf8(names.Attribute(elements[index], {Odf::kDraw, "name"}));
        ReadMembers(elements[index], {&page, nullptr, &page.objects});
    }
}

void ShapeReader::ReadMembers(pugi::xml_node container, const Place& place)
{
    for (const pugi::xml_node element : container.children())
    {
        if (element.type() == pugi::node_element)
            ReadMember(element, place);
    }
}

void ShapeReader::ReadMember(pugi::xml_node element, const Place& place)
{
    const XmlNames::Scope scope(names, element);
    const XmlName name = names.Of(element);
    if (name == kLink)
        return ReadMembers(element, place);
    const auto* const kind = std::ranges::find(kKinds, name, &Kind::element);
    if (kind == kKinds.end())
        return;
    const auto [objectName, styleName, textStyleName] = names.Attributes(element, kObjectAttributes);
    DrawingObject& object = AddObject(element, place);
    object.name = OvxUtils::FromUtf8(objectName);
    progress.Reach(object.place - start);
    object.kind = kind->name;
    object.isGroup = name == kGroup;
    if (object.isGroup)
        ReadMembers(element, {place.page, &object, &object.members});
    else
        ReadStyle(element, object, styleName, textStyleName);
}

DrawingObject& ShapeReader::AddObject(pugi::xml_node element, const Place& place)
{
    limits.CountObject();
    DrawingObject& object = allObjects->emplace_back(*place.page, place.group, place.members->size() + 1);
    place.members->push_back(&object);
    object.place = PlaceOfElement(element, source);
    return object;
}

void ShapeReader::ReadStyle(pugi::xml_node element, DrawingObject& object, std::string_view styleName,
                            std::string_view textStyleName)
{
    const StyleRecord* const record = catalogue.Find(StyleFamily::Graphic, styleName);
    if (record == nullptr && !styleName.empty())
    {
        warnings.Add("style \"" + ReadableName(styleName) +
                     R"(": shapes refer to it, but it does not exist; they take "standard")");
    }
    const ShapeParent parent = FindShapeParent(catalogue, record);
    if (parent.isMissing)
        ReportMissingParent(*record);
    StyleLevels levels;
    AddTextStyle(levels, catalogue, StyleFamily::Paragraph, textStyleName, warnings);
    const std::size_t textLevels = levels.size();
    if (record != nullptr && record->origin == StyleOrigin::Automatic)
        levels.push_back(record);

    text.Read(element, object, parent.style, levels);
    // Where there is text, its units carry what the text style sets; else the shape stands for itself.
    if (!object.paragraphs.empty())
        levels.erase(levels.begin(), levels.begin() + static_cast<std::ptrdiff_t>(textLevels));
    object.styles = &cascades;
    object.cascade = cascades.Intern(OwnValues::Scope::All, parent.style, levels);
}

void ShapeReader::ReportMissingParent(const StyleRecord& automatic)
{
    warnings.AddAbout(automatic, "its parent \"" + ReadableName(automatic.parentName) +
                                     R"(" does not exist; its shapes take "standard")");
}

} // namespace ReferenceHost
