#include "reference_host/document/picture/PackagePictures.h"

#include "reference_host/document/DocumentError.h"
#include "reference_host/document/OdfNamespaces.h"
#include "reference_host/document/ZipArchive.h"
#include "reference_host/document/picture/Base64.h"

namespace ReferenceHost
{

PackagePictures::PackagePictures(const DrawingFile& drawingFile) : file(drawingFile)
{
    if (file.form == DrawingForm::Zipped)
        archive = std::make_unique<ZipArchive>(file.bytes, file.label);
}

PackagePictures::~PackagePictures() = default;

PictureBytes PackagePictures::Find(pugi::xml_node element, XmlNames& names)
{
    const std::string_view reference = names.Attribute(element, {Odf::kXlink, "href"});
    if (!reference.empty())
        return FindEntry(reference);
    for (const pugi::xml_node child : element.children())
    {
        const XmlNames::Scope scope(names, child);
        if (names.Of(child) == XmlName{Odf::kOffice, "binary-data"})
            return std::make_shared<const std::string>(DecodeBase64(child.text().get()));
    }
    return nullptr;
}

PictureBytes PackagePictures::FindEntry(std::string_view reference)
{
    if (reference.starts_with("./"))
        reference.remove_prefix(2);
    const auto [place, isNew] = entries.try_emplace(std::string(reference));
    if (isNew && archive != nullptr && archive->Contains(place->first))
    {
        try
        {
            place->second = std::make_shared<const std::string>(archive->Read(place->first));
        }
        catch (const DocumentError&)
        {
            // A damaged picture is shown as a missing one; the drawing itself was read without it.
            place->second = nullptr;
        }
    }
    return place->second;
}

} // namespace ReferenceHost
