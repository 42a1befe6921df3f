#include "fuzz/Workplace.h"

#include "fuzz/Demand.h"
#include "fuzz/InputFile.h"
#include "reference_host/history/History.h"
#include "tests/reference_host/document/FlatDrawing.h"

#include <array>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <vector>

namespace Fuzz
{
namespace
{

std::filesystem::path ConfigurationPlace()
{
    return ScratchPlace() / "configuration";
}

/// Own and inherited values, a style of one category, texts, a group and a colour of the palette.
std::filesystem::path WriteDrawing()
{
    setenv("STYLEPROPS_CONFIG_DIR", ConfigurationPlace().c_str(), 1);
    return WriteInputFile(
        FlatDrawing()
            .Meta("<meta:user-defined meta:name='styleprops:palette:Sea'>#2a6f97</meta:user-defined>")
            .Defaults("<style:graphic-properties draw:fill-color='#cccccc'/>")
            .Styles("<draw:gradient draw:name='Dusk' draw:style='linear'/>")
            .Named("style:name='Base'",
                   "<style:graphic-properties draw:fill='solid' draw:fill-color='#3366cc'"
                   " svg:stroke-width='0.2cm'/><style:text-properties fo:font-size='14pt'/>")
            .Named("style:name='Accent' style:parent-style-name='Base'",
                   "<style:graphic-properties draw:fill-color='#2a6f97' sp:fill-color-resource='Sea'/>"
                   "<style:text-properties fo:font-size='150%'/>")
            .Named("style:name='Glow' style:parent-style-name='Accent'")
            .Automatic("graphic", "style:name='gr1' style:parent-style-name='Base'",
                       "<style:graphic-properties svg:stroke-width='0.35cm'/>")
            .Automatic("graphic", "style:name='gr2' style:parent-style-name='Accent'",
                       "<style:graphic-properties draw:fill-color='#ff0000'/>")
            .Automatic("text", "style:name='T1'", "<style:text-properties fo:font-weight='bold'/>")
            .Page("<draw:rect draw:name='A' draw:style-name='gr1'/>"
                  "<draw:g draw:name='G'><draw:ellipse draw:name='B' draw:style-name='gr2'/>"
                  "<draw:rect draw:name='C' draw:style-name='gr2'/></draw:g>")
            .Page("<draw:rect draw:name='D' draw:style-name='Base'><text:p>plain "
                  "<text:span text:style-name='T1'>bold</text:span></text:p></draw:rect>")
            .Text());
}

} // namespace

Workplace& Workplace::Get()
{
    static Workplace place;
    return place;
}

Workplace::Workplace()
    : folder(Workbench::ReadPanelFolder(FUZZED_PANELS)),
      session(WriteDrawing(), folder.panels),
      editor((static_cast<void>(session.LoadPanels(folder.panels)), session)),
      bytes(GetBytes())
{
    Demand(session.GetPanels().size() == folder.panels.size(), "the shipped panels can be loaded");
}

Workbench::Selector Workplace::GetSelector(unsigned number) const
{
    constexpr std::array kSelectors{L"all",      L"name:A",     L"name:B,name:C", L"page:2",
                                    L"defaults", L"sheet:Base", L"sheet:Accent"};
    return Workbench::ParseSelector(kSelectors[number % kSelectors.size()]);
}

std::string Workplace::GetBytes()
{
    std::vector<std::string> lost;
    return session.GetDrawing().Serialise(lost);
}

void Workplace::Restore()
{
    if (editor.IsGroupOpen())
        editor.EndGroup(false);
    while (editor.Undo())
        continue;
    DemandEqual(GetBytes(), bytes, "undoing every step brings back the drawing as it was opened");
    std::error_code ignored;
    std::filesystem::remove_all(ConfigurationPlace(), ignored);
    editor.Select(GetSelector(0));
}

} // namespace Fuzz
