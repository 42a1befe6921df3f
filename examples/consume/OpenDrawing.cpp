// open_drawing DRAWING SELECTOR PANELS: opens a drawing with the panels of a folder, and prints what they
// show for what the selector finds.

#include "apps/workbench/PanelFolder.h"
#include "apps/workbench/Selector.h"
#include "apps/workbench/Session.h"
#include "host/utils/OvxStringT.h"
#include "host/utils/Utf8.h"

#include <exception>
#include <iostream>
#include <string>
#include <variant>

namespace
{

std::string ToText(const Workbench::RowReport& row)
{
    if (row.isAmbiguous)
        return "ambiguous";
    if (const auto* const text = std::get_if<OvxStringT>(&row.value))
        return OvxUtils::ToUtf8(*text);
    if (const auto* const number = std::get_if<int>(&row.value))
        return std::to_string(*number);
    return "not set";
}

void Print(const Workbench::PanelReport& panel)
{
    for (const Workbench::RowReport& row : panel.rows)
        std::cout << OvxUtils::ToUtf8(panel.description->name) << '.'
                  << OvxUtils::ToUtf8(row.description->identifier) << ": " << ToText(row) << '\n';
}

void OpenDrawing(const char* drawing, const char* selector, const char* folder)
{
    const Workbench::PanelFolder panels = Workbench::ReadPanelFolder(folder);
    Workbench::Session session(drawing, panels.panels);
    for (const std::string& problem : session.LoadPanels(panels.panels))
        std::cerr << problem << '\n';
    const auto selected = session.Select(Workbench::ParseSelector(OvxUtils::FromUtf8(selector)));
    for (const Workbench::PanelReport& panel : session.Inspect(selected).panels)
        Print(panel);
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 4)
    {
        std::cerr << "usage: open_drawing DRAWING SELECTOR PANELS\n";
        return 2;
    }
    try
    {
        OpenDrawing(arguments[1], arguments[2], arguments[3]);
        return 0;
    }
    catch (const std::exception& error)
    {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
