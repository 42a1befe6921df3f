#include "reference_host/document/DocumentKind.h"

#include "reference_host/document/DocumentError.h"

#include <algorithm>
#include <array>

namespace ReferenceHost
{

namespace
{

constexpr std::string_view kMediaTypeStart = "application/vnd.oasis.opendocument.";

/// A kind of OpenDocument files: the end of its media type, the element in its body, and what people call it.
struct Kind
{
    std::string_view mediaTypeEnd;
    std::string_view bodyElement;
    const char* description;
};

constexpr std::array<Kind, 16> kOtherKinds{
    {{"text", "text", "a text document"},
     {"text-template", "text", "a template for text documents"},
     {"text-master", "text", "a master document"},
     {"text-master-template", "text", "a template for master documents"},
     {"text-web", "text", "a template for web pages"},
     {"spreadsheet", "spreadsheet", "a spreadsheet"},
     {"spreadsheet-template", "spreadsheet", "a template for spreadsheets"},
     {"presentation", "presentation", "a presentation"},
     {"presentation-template", "presentation", "a template for presentations"},
     {"chart", "chart", "a chart"},
     {"chart-template", "chart", "a template for charts"},
     {"formula", "", "a formula"},
     {"formula-template", "", "a template for formulas"},
     {"image", "image", "an image document"},
     {"image-template", "image", "a template for image documents"},
     {"base", "database", "a database"}}};

} // namespace

bool IsTemplateMediaType(std::string_view mediaType, const std::string& label)
{
    if (!mediaType.starts_with(kMediaTypeStart))
        FailNotADrawing("a file of the type \"" + std::string(mediaType) + "\"", label);
    const std::string_view end = mediaType.substr(kMediaTypeStart.size());
    if (end == "graphics" || end == "graphics-template")
        return end == "graphics-template";
    const auto* const kind = std::ranges::find(kOtherKinds, end, &Kind::mediaTypeEnd);
    FailNotADrawing(kind == kOtherKinds.end() ? "a file of the type \"" + std::string(mediaType) + "\""
                                              : kind->description,
                    label);
}

void RequireDrawingBody(std::string_view bodyElement, const std::string& label)
{
    if (bodyElement == "drawing")
        return;
    const auto* const kind = std::ranges::find(kOtherKinds, bodyElement, &Kind::bodyElement);
    FailNotADrawing(kind == kOtherKinds.end() || bodyElement.empty()
                        ? "a document without a drawing in its body"
                        : kind->description,
                    label);
}

void FailNotADrawing(const std::string& whatItIs, const std::string& label)
{
    throw DocumentError("this is " + whatItIs, label, "an OpenDocument drawing (.fodg, .odg or .otg)");
}

} // namespace ReferenceHost
