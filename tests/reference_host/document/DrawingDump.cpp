#include "tests/reference_host/document/DrawingDump.h"

#include "host/utils/Utf8.h"
#include "tests/reference_host/document/FlatDrawing.h"

#include <sstream>

namespace
{

using OvxUtils::ToUtf8;
using ReferenceHost::Drawing;
using Styles::Style;

void ShowParent(std::ostream& line, Drawing& drawing, const Style* style, const std::string& label)
{
    if (style != nullptr && style->GetParent() != nullptr)
        line << ' ' << label << '<' << ToUtf8(drawing.GetStyleSheet().GetStyleName(style->GetParent()))
             << '>';
}

std::string LineOf(Drawing& drawing, const std::string& label, const Style* style)
{
    std::ostringstream line;
    line << label;
    ShowParent(line, drawing, style, "parent");
    for (const Styles::PropertyKey& category : drawing.GetCategories())
        ShowParent(line, drawing, style->GetSubstyle(category, false), ToUtf8(category.GetString()));
    for (const std::string& own : AllOwnOf(style))
        line << ' ' << own;
    return line.str();
}

} // namespace

std::vector<std::string> DumpOf(Drawing& drawing)
{
    std::vector<std::string> lines;
    for (const ReferenceHost::PaletteEntry& entry : drawing.GetPalette())
    {
        std::ostringstream line;
        line << "palette " << ToUtf8(entry.name) << ' ' << int{entry.look.red} << ' ' << int{entry.look.green}
             << ' ' << int{entry.look.blue};
        lines.push_back(line.str());
    }
    for (const OvxStringT& name : drawing.GetStyleSheet().GetNames())
    {
        const Style* const style = drawing.GetStyleSheet().GetStyle(name);
        lines.push_back(LineOf(drawing,
                               "style " + ToUtf8(name) + " \"" + ToUtf8(drawing.GetDisplayName(name)) + "\"" +
                                   (drawing.IsHidden(name) ? " hidden " : " ") +
                                   ToUtf8(style->GetCategoryName().GetString()),
                               style));
    }
    lines.push_back(LineOf(drawing, "default", &drawing.GetDefaultStyle()));
    for (ReferenceHost::DrawingObject& object : drawing.GetObjects())
    {
        if (object.IsGroup())
            continue;
        const std::string id = ToUtf8(object.GetId());
        lines.push_back(LineOf(drawing, "object " + id, object.GetStyle()));
        for (ReferenceHost::TextUnit& paragraph : object.GetParagraphs())
            lines.push_back(LineOf(drawing, "paragraph of " + id, paragraph.GetStyle()));
        for (ReferenceHost::TextUnit& run : object.GetRuns())
            lines.push_back(LineOf(drawing, "run of " + id, run.GetStyle()));
    }
    return lines;
}
