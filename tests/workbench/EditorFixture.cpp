#include "tests/workbench/EditorFixture.h"

#include "apps/workbench/PanelReading.h"
#include "apps/workbench/RowPlace.h"
#include "apps/workbench/SelectionSearch.h"
#include "host/utils/Utf8.h"

namespace WorkbenchTests
{
namespace
{

using Workbench::ParseSelector;
using Workbench::ReportValue;
using Workbench::RowReport;

std::string Show(const ReportValue& value, const OvxStringT& link)
{
    const std::string suffix = link.empty() ? "" : "@" + OvxUtils::ToUtf8(link);
    if (const int* number = std::get_if<int>(&value))
        return std::to_string(*number) + suffix;
    if (const auto* text = std::get_if<OvxStringT>(&value))
        return OvxUtils::ToUtf8(*text) + suffix;
    return "-" + suffix;
}

std::string Show(const RowReport& row)
{
    return row.isAmbiguous ? "?" : Show(row.value, row.link);
}

} // namespace

FlatDrawing FourBoxes()
{
    return ManyBoxes(0);
}

FlatDrawing ManyBoxes(std::size_t count)
{
    std::string shapes = "<draw:rect draw:name='A' draw:style-name='gr1'/>"
                         "<draw:rect draw:name='B' draw:style-name='gr2'/>"
                         "<draw:rect draw:name='C' draw:style-name='gr3'/>"
                         "<draw:rect draw:name='D' draw:style-name='gr4'><text:p>text</text:p></draw:rect>";
    for (std::size_t number = 0; number < count; ++number)
        shapes += "<draw:rect draw:name='X' draw:style-name='gr4'/>";
    return FlatDrawing()
        .Meta("<meta:user-defined meta:name='styleprops:palette:Sea'>#2a6f97</meta:user-defined>")
        .Defaults("<style:graphic-properties draw:fill-color='#cccccc'/>")
        .Named("style:name='Base'",
               "<style:graphic-properties draw:fill-color='#3366cc' svg:stroke-width='0.2cm'/>")
        .Named("style:name='Accent' style:parent-style-name='Base'",
               "<style:graphic-properties draw:fill-color='#00aa00'/>")
        .Automatic("graphic", "style:name='gr1' style:parent-style-name='Base'",
                   "<style:graphic-properties svg:stroke-width='0.35cm'/>")
        .Automatic("graphic", "style:name='gr2' style:parent-style-name='Base'",
                   "<style:graphic-properties draw:fill-color='#ff0000'/>")
        .Automatic("graphic", "style:name='gr3' style:parent-style-name='Accent'", "")
        .Automatic("graphic", "style:name='gr4' style:parent-style-name='Base'", "")
        .Page(shapes);
}

std::string Describe(const Workbench::Change& change)
{
    return OvxUtils::ToUtf8(change.id) + " " + OvxUtils::ToUtf8(change.property) + " " +
           Show(change.from, change.fromLink) + " -> " + Show(change.to, change.toLink) + " " +
           OvxUtils::ToUtf8(Workbench::StateName(change.state));
}

OpenEditor::OpenEditor(const FlatDrawing& drawing)
    : folder(Workbench::ReadPanelFolder(SHIPPED_PANELS)),
      editor(Start(scratch.Write("drawing.fodg", drawing.Text())))
{
}

OpenEditor::OpenEditor(const std::filesystem::path& drawing)
    : folder(Workbench::ReadPanelFolder(SHIPPED_PANELS)), editor(Start(drawing))
{
}

Workbench::Editor& OpenEditor::Start(const std::filesystem::path& drawing)
{
    Workbench::Session& started = session.emplace(drawing, folder.panels);
    EXPECT_THAT(started.LoadPanels(folder.panels), testing::IsEmpty());
    return made.emplace(started);
}

void OpenEditor::End()
{
    made.reset();
    session.reset();
}

void OpenEditor::Select(const wchar_t* selector)
{
    editor.Select(ParseSelector(selector));
}

void OpenEditor::Set(const wchar_t* row, const wchar_t* value)
{
    editor.Set({{row, value}});
}

RowReport OpenEditor::Row(const wchar_t* name)
{
    return ReadRow(editor.GetSelection(), name);
}

std::string OpenEditor::ValueOf(const wchar_t* row)
{
    return Show(Row(row));
}

std::string OpenEditor::ValueOf(const wchar_t* selector, const wchar_t* row)
{
    return Show(ReadRow(session->Select(ParseSelector(selector)), row));
}

std::string OpenEditor::Dump()
{
    std::string dump = DumpOf(L"defaults");
    for (const OvxStringT& name : session->GetStyles().GetStyleNames())
        dump += DumpOf((OvxStringViewT(L"sheet:") + name).c_str());
    for (const Workbench::Selection& single : SplitByObject(session->Select(ParseSelector(L"all"))))
        dump += DumpOf(single.selector.c_str());
    return dump;
}

std::vector<std::string> OpenEditor::Changes()
{
    std::vector<std::string> changes;
    for (const Workbench::Change& change : editor.DescribeChanges())
        changes.push_back(Describe(change));
    return changes;
}

std::string OpenEditor::ErrorOf(const std::function<void()>& work)
{
    try
    {
        work();
    }
    catch (const std::runtime_error& error)
    {
        return error.what();
    }
    return "no error";
}

// Reads the names of one row alone: a report of all panels takes long over many objects.
RowReport OpenEditor::ReadRow(const Workbench::Selection& selection, const OvxStringT& name)
{
    session->HandIn(selection);
    const Workbench::RowPlace place = Workbench::FindRow(session->GetPanels(), name);
    const IReflectable& names = place.GetBoundNames();
    const OvxStringT& property = place.row->property;
    RowReport row;
    row.description = place.row;
    row.isAmbiguous = names.Read<int>(property + Workbench::kAmbiguousSuffix) != 0;
    row.value = Workbench::ToReportValue(names.ReadAny(property)).value();
    row.state = static_cast<ActivePropertyState>(names.Read<int>(property + Workbench::kStateSuffix));
    row.origin = Workbench::ParseOrigin(names.Read<OvxStringT>(property + Workbench::kOriginSuffix)).value();
    row.link = names.Read<OvxStringT>(property + Workbench::kLinkSuffix);
    return row;
}

std::string OpenEditor::DumpOf(const wchar_t* selector)
{
    std::string dump = OvxUtils::ToUtf8(OvxStringT(selector)) + "\n";
    for (const Workbench::PanelReport& panel :
         session->Inspect(session->Select(ParseSelector(selector))).panels)
    {
        for (const RowReport& row : panel.rows)
            dump += "  " + OvxUtils::ToUtf8(row.description->property) + " " + Show(row) + " " +
                    std::to_string(static_cast<int>(row.state)) + " " +
                    std::to_string(static_cast<int>(row.origin.kind)) + OvxUtils::ToUtf8(row.origin.style) +
                    "\n";
    }
    return dump;
}

} // namespace WorkbenchTests
