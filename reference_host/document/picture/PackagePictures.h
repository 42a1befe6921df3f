#pragma once

#include "reference_host/document/DrawingFile.h"
#include "reference_host/document/XmlNames.h"
#include "reference_host/document/picture/Definitions.h"

#include <pugixml.hpp>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace ReferenceHost
{

class ZipArchive;

/// Finds the bytes of pictures, in the entries of a package or within the XML text; each entry is unpacked
/// once. Pictures outside the file are left alone.
class PackagePictures
{
public:
    /// Borrows the file.
    explicit PackagePictures(const DrawingFile& drawingFile);
    PackagePictures(const PackagePictures&) = delete;
    PackagePictures& operator=(const PackagePictures&) = delete;
    ~PackagePictures();

    /// The picture that an element refers to or holds, whose scope is in force; null without one, and for one
    /// that cannot be read.
    [[nodiscard]] PictureBytes Find(pugi::xml_node element, XmlNames& names);

private:
    [[nodiscard]] PictureBytes FindEntry(std::string_view reference);

    const DrawingFile& file;
    std::unique_ptr<ZipArchive> archive; ///< Null for a flat file.
    std::map<std::string, PictureBytes, std::less<>> entries;
};

} // namespace ReferenceHost
