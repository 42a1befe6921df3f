#include "reference_host/document/picture/MasterShapes.h"

#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/ShapeReader.h"
#include "reference_host/document/StyleParents.h"
#include "reference_host/document/StyleReader.h"
#include "reference_host/document/Warnings.h"

#include "host/utils/Utf8.h"

#include <algorithm>

namespace ReferenceHost
{

MasterShapes::MasterShapes(DrawingData& drawing)
    : data(drawing), cascades(drawing.table, *drawing.defaultStyle)
{
}

void MasterShapes::Read(pugi::xml_node root, std::string_view text, XmlNames& names)
{
    const bool isFlat = data.file.form == DrawingForm::Flat;
    if (!isFlat)
        ReadStyles(root, text, names);
    Warnings reports(warnings);
    ShapeReader reader(isFlat ? data.catalogue : catalogue, cascades, text, names, reports, data.file.label);
    for (const pugi::xml_node container : root.children())
    {
        const XmlNames::Scope scope(names, container);
        if (names.Of(container) == XmlName{Odf::kOffice, "master-styles"})
            reader.ReadMasters(container, pages, objects);
    }
    MakeStyles();
}

/// Made later, styles would need what the file said, which may be gone by then.
void MasterShapes::MakeStyles()
{
    for (const DrawingObject& object : objects)
    {
        static_cast<void>(object.GetStyleToRead());
        for (const TextUnit& paragraph : object.GetParagraphs())
            static_cast<void>(paragraph.GetStyleToRead());
        for (const TextUnit& run : object.GetRuns())
            static_cast<void>(run.GetStyleToRead());
    }
}

void MasterShapes::ReadStyles(pugi::xml_node root, std::string_view text, XmlNames& names)
{
    Warnings reports(warnings);
    PaletteColours colours;
    for (const PaletteEntry& entry : data.palette)
        colours.emplace(OvxUtils::ToUtf8(entry.name), entry.look);
    // What shapes without a parent take has to be in the same catalogue.
    if (const StyleRecord* const standard = data.catalogue.FindOwnNamed(StyleFamily::Graphic, "standard"))
    {
        StyleRecord copy = *standard;
        catalogue.AddUnlessThere(copy);
    }
    catalogue.AddFallback(data.catalogue);
    StyleReader reader(data.table, colours, catalogue, reports);
    reader.ReadDeclarations(root, names);
    for (const pugi::xml_node container : root.children())
    {
        const XmlNames::Scope scope(names, container);
        if (names.Of(container) == XmlName{Odf::kOffice, "automatic-styles"})
            reader.ReadStyles(container, text, names, StyleOrigin::Automatic, {});
    }
    static_cast<void>(LinkParents(catalogue, reports));
    LinkSubstyleParents(catalogue, data.table, reports);
}

DrawingObject* MasterShapes::FindAt(std::size_t place)
{
    const auto found = std::ranges::lower_bound(objects, place, {}, &DrawingObject::GetPlace);
    return found != objects.end() && found->GetPlace() == place ? &*found : nullptr;
}

} // namespace ReferenceHost
