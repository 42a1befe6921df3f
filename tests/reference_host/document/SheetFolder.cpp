#include "tests/reference_host/document/SheetFolder.h"

#include <fstream>
#include <iterator>

std::filesystem::path SheetFolder::PathOf(const std::string& name) const
{
    std::filesystem::path path = folder.GetPath() / name;
    std::filesystem::create_directories(path.parent_path());
    return path;
}

std::filesystem::path SheetFolder::Write(const std::string& name, const FlatDrawing& drawing) const
{
    return WriteBytes(name, drawing.Text());
}

std::filesystem::path SheetFolder::WriteBytes(const std::string& name, const std::string& bytes) const
{
    std::filesystem::path path = PathOf(name);
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
}

std::string SheetFolder::Bytes(const std::string& name) const
{
    std::ifstream stream(folder.GetPath() / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

OpenedDrawing SheetFolder::Open(const std::string& name) const
{
    OpenedDrawing opened;
    opened.drawing = ReferenceHost::Drawing::Open(folder.GetPath() / name, opened.warnings);
    return opened;
}

FlatDrawing HouseSheet()
{
    return FlatDrawing()
        .Defaults("<style:graphic-properties draw:stroke='none' draw:opacity='50%'/>")
        .Named("style:name='House_20_Base'",
               "<style:graphic-properties draw:fill-color='#3366cc' svg:stroke-width='1mm'/>")
        .Named("style:name='House_20_Box' style:display-name='Box of the house' "
               "style:parent-style-name='House_20_Base'",
               "<style:graphic-properties draw:fill-color='#00aa00'/>")
        .Named("style:name='House_20_Ink' sp:category='fill'",
               "<style:graphic-properties draw:fill-color='#111111'/>")
        .Page("");
}

std::string LinkTo(const std::string& reference, const std::string& attributes)
{
    return "<sp:style-sheet xlink:href='" + reference + "' " + attributes + "/>";
}

FlatDrawing LinkedDrawing(const std::string& linkAttributes)
{
    return FlatDrawing()
        .Styles(LinkTo("house.fodg", "sp:name='House' " + linkAttributes))
        .Defaults("<style:graphic-properties draw:stroke='dash'/>")
        .Named("style:name='Note' style:parent-style-name='House_20_Base'",
               "<style:graphic-properties draw:fill-color='#ffee00'/>")
        .Automatic("graphic", "style:name='gr1' style:parent-style-name='House_20_Box'",
                   "<style:graphic-properties svg:stroke-width='2mm'/>")
        .Automatic("graphic", "style:name='gr2' style:parent-style-name='Note'", "")
        .Page("<draw:rect draw:name='Box' draw:style-name='gr1'/>"
              "<draw:rect draw:name='Sticky' draw:style-name='gr2'/>");
}

FlatDrawing EditingDrawing()
{
    return LinkedDrawing("sp:editable='true'");
}
