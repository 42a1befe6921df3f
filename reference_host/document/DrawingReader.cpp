#include "reference_host/document/DrawingReader.h"

#include "reference_host/document/ContentLimits.h"
#include "reference_host/document/DocumentKind.h"
#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/ShapeReader.h"
#include "reference_host/document/XmlSource.h"
#include "reference_host/document/XmlText.h"
#include "reference_host/document/XmlTree.h"

#include "host/utils/Utf8.h"

#include <algorithm>
#include <utility>

namespace ReferenceHost
{

namespace
{

constexpr XmlName kBody{Odf::kOffice, "body"};
constexpr XmlName kDrawing{Odf::kOffice, "drawing"};
constexpr XmlName kStyles{Odf::kOffice, "styles"};
constexpr XmlName kAutomaticStyles{Odf::kOffice, "automatic-styles"};
constexpr XmlName kMeta{Odf::kOffice, "meta"};
constexpr XmlName kSheetLink{OwnMarkup::kNamespace, OwnMarkup::kSheetLink};

// Which share of the work is done after each stage, as measured with large drawings.
constexpr double kFileRead = 0.08;
constexpr double kParsed = 0.34;
constexpr double kStylesRead = 0.48;
constexpr double kSheetsRead = 0.55;

std::size_t CountElements(pugi::xml_node parent)
{
    const auto children = parent.children();
    return static_cast<std::size_t>(std::count_if(children.begin(), children.end(),
                                                  [](pugi::xml_node child)
                                                  { return child.type() == pugi::node_element; }));
}

} // namespace

DrawingReader::DrawingReader(DrawingData& target, std::vector<std::string>& warningLines,
                             const ProgressSpan& whole)
    : data(target), warnings(warningLines), progress(whole)
{
}

void DrawingReader::Read(SheetLinks links)
{
    data.file = ReadDrawingFile(data.path, progress.Part(0, kFileRead));
    ReadContents(links);
}

void DrawingReader::ReadContents(SheetLinks links)
{
    const bool isFlat = data.file.form == DrawingForm::Flat;
    const Parts parts = ParseAll();
    const Part& content = parts.content;
    RequireDrawing(content);
    ReadPalette(isFlat ? content : parts.meta);

    StyleReader reader(data.table, colours, data.catalogue, warnings);
    ReadStyles(reader, isFlat ? content : parts.styles, content);
    if (reader.GetDefault() != nullptr)
        data.defaultRecord = *reader.GetDefault();
    FillDefaultStyle(*data.defaultStyle, reader.GetDefault(), data.table, warnings);
    ReadSheetLinks(isFlat ? content : parts.styles);
    OpenSheets(links);
    NamedStyleBuilder(data.table, *data.defaultStyle, data.sheet, data.appearances, warnings)
        .Build(data.catalogue);
    ReadShapes(content);
}

DrawingReader::Parts DrawingReader::ParseAll() const
{
    const ProgressSpan parsing = progress.Part(kFileRead, kParsed);
    Parts parts;
    if (data.file.form == DrawingForm::Flat)
    {
        parts.content = Parse(data.file.bytes, nullptr, parsing);
        return parts;
    }
    const DrawingFile& file = data.file;
    ProgressPieces pieces(parsing, file.content.size() + file.styles.size() + file.meta.size());
    parts.content = Parse(file.content, "content.xml", pieces.Next(file.content.size()));
    parts.styles = Parse(file.styles, "styles.xml", pieces.Next(file.styles.size()));
    parts.meta = Parse(file.meta, "meta.xml", pieces.Next(file.meta.size()));
    return parts;
}

DrawingReader::Part DrawingReader::Parse(std::string_view text, const char* entry,
                                         const ProgressSpan& parsing) const
{
    Part part;
    part.text = text;
    part.label = entry == nullptr ? data.file.label : data.file.label + ", " + entry;
    if (entry == nullptr || !text.empty())
        part.tree = ParseXml(text, part.label, parsing);
    return part;
}

void DrawingReader::RequireDrawing(const Part& content)
{
    const bool isFlat = data.file.form == DrawingForm::Flat;
    const pugi::xml_node root = content.GetRoot();
    if (root.empty())
        throw DocumentError("the entry is empty", content.label, "office:document-content");
    XmlNames names;
    const XmlNames::Scope scope(names, root);
    const XmlName expected{Odf::kOffice, isFlat ? "document" : "document-content"};
    if (names.Of(root) != expected)
        FailNotADrawing(std::string("XML with the root element <") + root.name() + ">", content.label);
    const std::string_view mediaType = names.Attribute(root, {Odf::kOffice, "mimetype"});
    if (isFlat && !mediaType.empty())
        data.file.isTemplate = IsTemplateMediaType(mediaType, content.label);

    std::string_view bodyElement;
    ForEachChild(root, names, kBody,
                 [&](pugi::xml_node body)
                 {
                     for (const pugi::xml_node element : body.children())
                     {
                         const XmlNames::Scope elementScope(names, element);
                         if (names.Of(element).uri == Odf::kOffice && bodyElement.empty())
                             bodyElement = names.Of(element).local;
                     }
                 });
    if (bodyElement.empty())
        throw DocumentError("there is no body", content.label, "<office:body> with <office:drawing>");
    RequireDrawingBody(bodyElement, content.label);
}

void DrawingReader::ReadPalette(const Part& part)
{
    XmlNames names;
    const pugi::xml_node root = part.GetRoot();
    const XmlNames::Scope scope(names, root);
    ForEachChild(root, names, kMeta,
                 [&](pugi::xml_node meta)
                 {
                     ForEachChild(meta, names, {Odf::kMeta, "user-defined"},
                                  [&](pugi::xml_node entry) { ReadPaletteEntry(entry, names); });
                 });
}

void DrawingReader::ReadPaletteEntry(pugi::xml_node element, XmlNames& names)
{
    const std::string_view key = names.Attribute(element, {Odf::kMeta, "name"});
    if (!key.starts_with(OwnMarkup::kPalettePrefix))
        return;
    const std::string name(key.substr(OwnMarkup::kPalettePrefix.size()));
    const std::string_view text = element.text().get();
    const std::optional<CLR_COLORSPEC::Rgb> look = ParseColour(TrimXmlBlanks(text));
    if (!look || name.empty())
        return warnings.Add("palette entry \"" + name + "\": \"" + std::string(text) +
                            "\" is no colour; it was left out");
    if (!colours.emplace(name, *look).second)
        return warnings.Add("palette entry \"" + name + "\": it is there twice; the first one counts");
    data.palette.push_back({OvxUtils::FromUtf8(name), *look});
}

void DrawingReader::ReadStyles(StyleReader& reader, const Part& styles, const Part& content)
{
    const auto readContainers = [this, &reader](const Part& part, const XmlName& container,
                                                StyleOrigin origin, const ProgressSpan& reading)
    {
        XmlNames names;
        const XmlNames::Scope scope(names, part.GetRoot());
        ForEachChild(part.GetRoot(), names, container,
                     [&](pugi::xml_node element)
                     {
                         DemandAtMost(origin == StyleOrigin::Named ? kMostNamedStyles : kMostStyles,
                                      data.catalogue.GetRecords().size() + CountElements(element), "styles",
                                      part.label);
                         reader.ReadStyles(element, part.text, names, origin, reading);
                     });
    };
    const auto readDeclarations = [&reader](const Part& part)
    {
        XmlNames names;
        const XmlNames::Scope scope(names, part.GetRoot());
        reader.ReadDeclarations(part.GetRoot(), names);
    };
    readDeclarations(styles);
    const ProgressSpan all = progress.Part(ProgressPhase::Styles, kParsed, kStylesRead);
    constexpr double kNamed = 0.2;
    readContainers(styles, kStyles, StyleOrigin::Named, all.Part(0, kNamed));
    data.namedDeclared = reader.GetDeclared();
    // A package declares fonts for each of its texts; those of the content stand for what shapes use. The
    // automatic styles beside the named ones belong to master pages.
    if (&styles != &content)
        readDeclarations(content);
    data.declared = reader.GetDeclared();
    readContainers(content, kAutomaticStyles, StyleOrigin::Automatic, all.Part(kNamed, 1));
}

void DrawingReader::ReadSheetLinks(const Part& styles)
{
    const auto read = [&](pugi::xml_node element, XmlNames& names)
    {
        StyleSheetLink link;
        link.reference = names.Attribute(element, {Odf::kXlink, "href"});
        const std::string_view name =
            names.Attribute(element, {OwnMarkup::kNamespace, OwnMarkup::kSheetName});
        link.name = OvxUtils::FromUtf8(name.empty() ? std::string_view(link.reference) : name);
        link.isEditable =
            names.Attribute(element, {OwnMarkup::kNamespace, OwnMarkup::kSheetEditable}) == "true";
        link.place = PlaceOfElement(element, styles.text);
        data.sheetLinks.push_back(std::move(link));
    };
    XmlNames names;
    const XmlNames::Scope scope(names, styles.GetRoot());
    ForEachChild(styles.GetRoot(), names, kStyles,
                 [&](pugi::xml_node container) {
                     ForEachChild(container, names, kSheetLink,
                                  [&](pugi::xml_node element) { read(element, names); });
                 });
}

void DrawingReader::OpenSheets(SheetLinks links)
{
    if (links == SheetLinks::Follow)
        return data.sheets.Open(data, warnings,
                                progress.Part(ProgressPhase::StyleSheets, kStylesRead, kSheetsRead));
    for (const StyleSheetLink& link : data.sheetLinks)
        warnings.Add("style sheet \"" + OvxUtils::ToUtf8(link.name) +
                     "\": links in style sheets are not followed; it was passed over");
}

void DrawingReader::ReadShapes(const Part& content)
{
    XmlNames names;
    const pugi::xml_node root = content.GetRoot();
    const XmlNames::Scope scope(names, root);
    ShapeReader reader(data.catalogue, data.cascades, content.text, names, warnings, content.label);
    const ProgressSpan reading = progress.Part(ProgressPhase::Shapes, kSheetsRead, 1);
    ForEachChild(root, names, kBody,
                 [&](pugi::xml_node body)
                 {
                     ForEachChild(body, names, kDrawing,
                                  [&](pugi::xml_node drawing)
                                  { reader.Read(drawing, data.pages, data.objects, reading); });
                 });
}

} // namespace ReferenceHost
