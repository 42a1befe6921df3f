#include "tests/reference_host/document/FlatDrawing.h"

#include "tests/reference_host/document/ScratchFolder.h"

#include "host/colour/CLR_COLORSPEC.h"
#include "host/utils/Utf8.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

namespace
{

const std::string kNamespaces = " xmlns:office=\"urn:oasis:names:tc:opendocument:xmlns:office:1.0\""
                                " xmlns:style=\"urn:oasis:names:tc:opendocument:xmlns:style:1.0\""
                                " xmlns:text=\"urn:oasis:names:tc:opendocument:xmlns:text:1.0\""
                                " xmlns:draw=\"urn:oasis:names:tc:opendocument:xmlns:drawing:1.0\""
                                " xmlns:dr3d=\"urn:oasis:names:tc:opendocument:xmlns:dr3d:1.0\""
                                " xmlns:fo=\"urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0\""
                                " xmlns:svg=\"urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0\""
                                " xmlns:meta=\"urn:oasis:names:tc:opendocument:xmlns:meta:1.0\""
                                " xmlns:xlink=\"http://www.w3.org/1999/xlink\""
                                " xmlns:sp=\"urn:styleproperties:1.0\"";

std::string Show(const OvxUtils::Any& value)
{
    if (const int* const number = value.TryGet<int>())
        return std::to_string(*number);
    if (const auto* const key = value.TryGet<Styles::PropertyKey>())
        return OvxUtils::ToUtf8(key->GetString());
    if (const auto* const text = value.TryGet<OvxStringT>())
        return "\"" + OvxUtils::ToUtf8(*text) + "\"";
    const auto* const colour = value.TryGet<CLR_COLORSPEC>();
    if (colour == nullptr)
        return "-";
    const CLR_COLORSPEC::Rgb rgb = colour->ToRgb();
    std::ostringstream shown;
    shown << '#' << std::hex << std::setfill('0');
    for (const unsigned component : {rgb.red, rgb.green, rgb.blue})
        shown << std::setw(2) << component;
    if (colour->GetModel() == CLR_COLORSPEC::kResource)
        shown << '@' << OvxUtils::ToUtf8(colour->GetResourceName());
    return shown.str();
}

Styles::PropertyKey Key(const std::string& text)
{
    return Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(OvxUtils::FromUtf8(text)));
}

Styles::PropertyPath PathOf(const std::string& path)
{
    const std::size_t dot = path.find('.');
    return {Key(path.substr(0, dot)), Key(path.substr(dot + 1))};
}

} // namespace

ReferenceHost::DrawingObject* OpenedDrawing::Object(const std::wstring& id) const
{
    for (ReferenceHost::DrawingObject& object : drawing->GetObjects())
    {
        if (object.GetId() == OvxStringT(id))
            return &object;
    }
    return nullptr;
}

std::vector<std::wstring> OpenedDrawing::Ids() const
{
    std::vector<std::wstring> ids;
    for (const ReferenceHost::DrawingObject& object : drawing->GetObjects())
        ids.push_back(object.GetId().Wide());
    return ids;
}

Styles::Style* OpenedDrawing::Named(const std::wstring& name) const
{
    return drawing->GetStyleSheet().GetStyle(name);
}

std::wstring OpenedDrawing::ParentOf(const Styles::Style* style) const
{
    return drawing->GetStyleSheet().GetStyleName(style->GetParent()).Wide();
}

FlatDrawing& FlatDrawing::Styles(const std::string& xml)
{
    styles += xml;
    return *this;
}

FlatDrawing& FlatDrawing::Named(const std::string& attributes, const std::string& properties)
{
    return Styles("<style:style style:family=\"graphic\" " + attributes + ">" + properties +
                  "</style:style>");
}

FlatDrawing& FlatDrawing::Defaults(const std::string& properties)
{
    return Styles("<style:default-style style:family=\"graphic\">" + properties + "</style:default-style>");
}

FlatDrawing& FlatDrawing::Automatic(const std::string& xml)
{
    automatic += xml;
    return *this;
}

FlatDrawing& FlatDrawing::Automatic(const std::string& family, const std::string& attributes,
                                    const std::string& properties)
{
    return Automatic("<style:style style:family=\"" + family + "\" " + attributes + ">" + properties +
                     "</style:style>");
}

FlatDrawing& FlatDrawing::Fonts(const std::string& xml)
{
    fonts += xml;
    return *this;
}

FlatDrawing& FlatDrawing::Meta(const std::string& xml)
{
    meta += xml;
    return *this;
}

FlatDrawing& FlatDrawing::Page(const std::string& shapes)
{
    pages += "<draw:page>" + shapes + "</draw:page>";
    return *this;
}

std::string FlatDrawing::Text() const
{
    return "<office:document" + kNamespaces +
           " office:mimetype=\"application/vnd.oasis.opendocument.graphics\"><office:meta>" + meta +
           "</office:meta><office:font-face-decls>" + fonts + "</office:font-face-decls><office:styles>" +
           styles + "</office:styles><office:automatic-styles>" + automatic +
           "</office:automatic-styles><office:body><office:drawing>" + pages +
           "</office:drawing></office:body></office:document>";
}

std::string FlatDrawing::ContentText() const
{
    return "<office:document-content" + kNamespaces + "><office:automatic-styles>" + automatic +
           "</office:automatic-styles><office:body><office:drawing>" + pages +
           "</office:drawing></office:body></office:document-content>";
}

std::string FlatDrawing::StylesText() const
{
    return "<office:document-styles" + kNamespaces + "><office:font-face-decls>" + fonts +
           "</office:font-face-decls><office:styles>" + styles + "</office:styles></office:document-styles>";
}

OpenedDrawing FlatDrawing::Open(const std::vector<ReferenceHost::PropertyMapping>& extensions) const
{
    return OpenText(Text(), extensions);
}

OpenedDrawing OpenText(const std::string& text, const std::vector<ReferenceHost::PropertyMapping>& extensions)
{
    const ScratchFolder folder;
    OpenedDrawing opened;
    opened.drawing =
        ReferenceHost::Drawing::Open(folder.Write("drawing.fodg", text), opened.warnings, extensions);
    return opened;
}

std::string EffectiveOf(const Styles::Style* style, const std::string& path)
{
    return Show(style->GetPathProperty(PathOf(path)));
}

std::string OwnOf(const Styles::Style* style, const std::string& path)
{
    return style->DoesOverridePathProperty(PathOf(path)) ? EffectiveOf(style, path) : "-";
}

std::vector<std::string> AllOwnOf(const Styles::Style* style)
{
    std::vector<std::string> lines;
    for (const Styles::PropertyPath& path : Styles::GetOverriddenPropertyPaths(*style))
    {
        std::string name;
        for (const Styles::PropertyKey& key : path)
            name += (name.empty() ? "" : ".") + OvxUtils::ToUtf8(key.GetString());
        lines.push_back(name + "=" + Show(style->GetPathProperty(path)));
    }
    std::ranges::sort(lines);
    return lines;
}
