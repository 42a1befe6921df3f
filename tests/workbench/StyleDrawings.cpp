#include "tests/workbench/StyleDrawings.h"

#include "host/utils/Utf8.h"

namespace WorkbenchTests
{
namespace
{

std::string InheritingFrom(const std::string& parent)
{
    return parent.empty() ? "" : " style:parent-style-name='" + parent + "'";
}

/// The three boxes: One inherits from `first`, Two and Three from `second`, or from nothing.
FlatDrawing& AddBoxes(FlatDrawing& drawing, const std::string& first, const std::string& second)
{
    return drawing.Automatic("graphic", "style:name='gr1'" + InheritingFrom(first), "")
        .Automatic("graphic", "style:name='gr2'" + InheritingFrom(second), "")
        .Page("<draw:rect draw:name='One' draw:style-name='gr1'/>"
              "<draw:rect draw:name='Two' draw:style-name='gr2'/>"
              "<draw:rect draw:name='Three' draw:style-name='gr2'/>");
}

} // namespace

FlatDrawing NumberedStyles(int count, const std::string& parent)
{
    FlatDrawing drawing;
    for (int number = 1; number <= count; ++number)
        drawing.Named("style:name='S" + std::to_string(number) + "'",
                      "<style:graphic-properties svg:stroke-width='0." + std::to_string(number) + "cm'/>");
    return AddBoxes(drawing, parent, count < 2 ? "" : "S2");
}

FlatDrawing NumberedFills(int count)
{
    FlatDrawing drawing;
    for (int number = 1; number <= count; ++number)
        drawing.Named("sp:category='fill' style:name='S" + std::to_string(number) + "'",
                      "<style:graphic-properties draw:fill-color='#0000" + std::to_string(10 + number) +
                          "'/>");
    return AddBoxes(drawing, "", "");
}

std::vector<std::string> Show(const Workbench::StyleList& list)
{
    std::vector<std::string> shown;
    for (const Workbench::StyleListEntry& entry : list.entries)
        shown.push_back(std::to_string(entry.id) + " " + OvxUtils::ToUtf8(entry.text) +
                        (entry.isChecked ? " *" : "") + (entry.leadsToDialog ? " >" : ""));
    return shown;
}

OvxStringT StyleOf(OpenEditor& open, const wchar_t* selector)
{
    Workbench::Session& session = open.GetSession();
    return session.GetStyles().NamedStyleOf(
        *session.Select(Workbench::ParseSelector(selector)).objects.at(0));
}

OvxStringT ParentOf(OpenEditor& open, const wchar_t* style)
{
    const std::vector<OvxStringT> ancestors = open.GetSession().GetStyles().AncestorsOf(style);
    return ancestors.empty() ? OvxStringT() : ancestors.front();
}

} // namespace WorkbenchTests
