#include "tests/reference_host/document/DrawingPackage.h"

#include "tests/reference_host/document/ZipBuilder.h"

std::string PackageOf(const FlatDrawing& drawing)
{
    return ZipBuilder()
        .Add("mimetype", "application/vnd.oasis.opendocument.graphics")
        .Add("content.xml", drawing.ContentText(), ZipBuilder::Packing::Deflated)
        .Add("styles.xml", drawing.StylesText(), ZipBuilder::Packing::Deflated)
        .Build();
}
