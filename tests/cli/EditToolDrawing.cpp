#include "tests/cli/EditToolDrawing.h"

namespace CliTests
{

using Json = nlohmann::ordered_json;

namespace
{

FlatDrawing Boxes()
{
    return FlatDrawing()
        .Meta("<meta:user-defined meta:name='styleprops:palette:Sea'>#2a6f97</meta:user-defined>")
        .Named("style:name='Base'", "<style:graphic-properties draw:fill='solid' draw:fill-color='#3366cc' "
                                    "svg:stroke-width='0.05cm'/>")
        .Automatic("graphic", "style:name='gr1' style:parent-style-name='Base'",
                   "<style:graphic-properties draw:fill-color='#ff0000'/>")
        .Automatic("graphic", "style:name='gr2' style:parent-style-name='Base'", "")
        .Page("<draw:rect draw:name='Box' draw:style-name='gr1'/>"
              "<draw:rect draw:name='Other' draw:style-name='gr2'/>");
}

} // namespace

EditedBoxes::EditedBoxes() : drawing(Boxes())
{
}

ToolResult EditedBoxes::Run(const std::string& command, const std::vector<std::string>& arguments) const
{
    std::vector<std::string> all = {command, drawing.GetFile()};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return RunTool(all);
}

Json EditedBoxes::Edit(const std::string& command, std::vector<std::string> arguments) const
{
    arguments.emplace_back("--in-place");
    return drawing.Json(command, arguments);
}

Json EditedBoxes::RunScript(const std::string& script) const
{
    const ScratchFolder folder;
    return Edit("edit", {"--script", folder.Write("edits.txt", script).string()});
}

std::string EditedBoxes::Row(const std::string& selector, const std::string& panel,
                             const std::string& identifier) const
{
    return RowOf(drawing.Report({"--select", selector}), panel, identifier);
}

Json EditedBoxes::Everything() const
{
    return drawing.Json("inspect", {"--each"});
}

} // namespace CliTests
