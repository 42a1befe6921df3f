#include "bench/drawing/LibraryDrawing.h"

#include "apps/workbench/PanelFolder.h"
#include "apps/workbench/Selector.h"

#include <filesystem>
#include <optional>
#include <stdexcept>

namespace Bench
{

LibraryDrawing::LibraryDrawing(std::size_t shapes)
    : scratch(shapes), panels(Workbench::ReadPanelFolder(Workbench::FindPanelFolder(std::nullopt)).panels)
{
}

LibraryDrawing::~LibraryDrawing()
{
    Close();
}

void LibraryDrawing::Close()
{
    session.reset();
    opened = {};
    std::filesystem::remove(scratch.GetTarget());
}

std::size_t LibraryDrawing::Open()
{
    opened = Workbench::Session::OpenDrawing(scratch.GetDrawing(), panels);
    return opened.drawing->GetObjects().size();
}

void LibraryDrawing::Begin()
{
    session = std::make_unique<Workbench::Session>(std::move(opened));
    for (const std::string& problem : session->LoadPanels(panels))
        throw std::runtime_error(problem);
}

std::size_t LibraryDrawing::Inspect()
{
    const Workbench::Selection all = session->Select(Workbench::ParseSelector(L"all"));
    return session->Inspect(all).targets.size();
}

void LibraryDrawing::EditOne()
{
    Edit(L"id:1/1");
}

void LibraryDrawing::EditAll()
{
    Edit(L"all");
}

void LibraryDrawing::Edit(const wchar_t* selector)
{
    Workbench::Editor editor(*session);
    editor.Select(Workbench::ParseSelector(selector));
    editor.Set({{L"fill.color", L"#123456"}});
}

std::size_t LibraryDrawing::Save()
{
    std::vector<std::string> warnings;
    session->GetDrawing().Save(scratch.GetTarget(), {}, warnings);
    return session->GetDrawing().GetObjects().size();
}

} // namespace Bench
