#include "apps/cli/TextReport.h"

#include "apps/workbench/PanelReading.h"
#include "apps/workbench/ValueText.h"
#include "host/resources/Resources.h"
#include "reference_host/services/NativePaths.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace Cli
{
namespace
{

using Framework::Resources::GetString;
using Workbench::PanelReport;
using Workbench::RowOrigin;
using Workbench::RowReport;

struct StateIcon
{
    OvxStringViewT image;
    OvxStringViewT icon;
    OutputRole role;
};

/// The icons for the pictures that the library names.
constexpr StateIcon kStateIcons[] = {{L"OverriddenImage", L"●", OutputRole::Local},
                                     {L"InheritedImage", L"○", OutputRole::Inherited},
                                     {L"AmbiguousImage", L"◐", OutputRole::Ambiguous},
                                     {L"NoneImage", L"·", OutputRole::Plain}};

OvxStringT Number(std::size_t number)
{
    return OvxStringT(std::to_wstring(number));
}

TextCell ValueCell(const RowReport& row)
{
    if (row.isAmbiguous)
        return {GetString(L"value.ambiguous"), OutputRole::Ambiguous};
    if (std::holds_alternative<std::monostate>(row.value))
        return {GetString(L"value.unset"), OutputRole::Faint};
    OvxStringT text = ValueToText(row);
    if (!row.link.empty())
        text += OvxStringT(L" (") + row.link + OvxStringT(L")");
    return {text, OutputRole::Plain};
}

/// The state and, where it tells more, the origin: "inherited from Base", "inherited (default)", "no parent
/// (local)".
OvxStringT StateToText(const RowReport& row)
{
    const OvxStringT state = GetString(OvxStringT(L"state.") + Workbench::StateName(row.state));
    const auto inBrackets = [&](const OvxStringT& text)
    { return state + OvxStringT(L" (") + text + OvxStringT(L")"); };
    switch (row.origin.kind)
    {
    case RowOrigin::Kind::Style:
        return state + OvxStringT(L" ") +
               OvxStringT::FormatMessageInserts(GetString(L"origin.style"), {row.origin.style});
    case RowOrigin::Kind::Default:
        return inBrackets(GetString(L"origin.default"));
    case RowOrigin::Kind::Local:
        return row.state == ActivePropertyState::None ? inBrackets(GetString(L"origin.local")) : state;
    case RowOrigin::Kind::None:
        break;
    }
    return state;
}

TextLine RowToLine(const RowReport& row)
{
    const auto* const icon = std::find_if(std::begin(kStateIcons), std::end(kStateIcons),
                                          [&](const StateIcon& each) { return each.image == row.image; });
    const bool isKnown = icon != std::end(kStateIcons);
    const OutputRole role = isKnown ? icon->role : OutputRole::Plain;
    TextLine line;
    line.indent = 2;
    line.cells.push_back({OvxStringT(isKnown ? icon->icon : L"?"), role});
    line.cells.push_back({GetString(row.description->label), OutputRole::Plain});
    line.cells.push_back(ValueCell(row));
    line.cells.push_back({StateToText(row), role});
    return line;
}

/// A title as people read it: the library doubles each "&" for labels of a window.
OvxStringT TitleToText(const PanelReport& panel)
{
    OvxStringT title = panel.title;
    title.Replace(L"&&", L"&");
    return title;
}

void AppendPanel(std::vector<TextLine>& lines, const PanelReport& panel)
{
    lines.push_back({});
    lines.push_back({{{TitleToText(panel), OutputRole::Heading}}, 0});
    if (!panel.hasTargets)
    {
        lines.push_back({{{GetString(L"report.no-targets"), OutputRole::Faint}}, 2});
        return;
    }
    for (const RowReport& row : panel.rows)
        lines.push_back(RowToLine(row));
}

/// "1/4/2 rect "Box": Accent < Base < standard".
OvxStringT TargetToText(const Workbench::TargetReport& target)
{
    OvxStringT text = target.id + OvxStringT(L" ") + target.kind;
    if (!target.name.empty())
        text += OvxStringT(L" \"") + target.name + OvxStringT(L"\"");
    if (target.style.empty())
        return text;
    text += OvxStringT(L": ") + target.style;
    for (const OvxStringT& parent : target.parents)
        text += OvxStringT(L" < ") + parent;
    return text;
}

OvxStringT SelectionToText(const Workbench::Report& report)
{
    if (report.targets.size() == 1)
        return TargetToText(report.targets.front());
    if (report.targets.empty())
        return report.selector;
    return report.selector + OvxStringT(L" (") +
           OvxStringT::FormatMessageInserts(GetString(L"report.objects"), {Number(report.targets.size())}) +
           OvxStringT(L")");
}

/// The named styles by the one they inherit from, walked as a tree.
class StyleTree
{
public:
    explicit StyleTree(const std::vector<Workbench::NamedStyleFacts>& allStyles) : styles(allStyles)
    {
        // Sheets outside the drawing may have styles of the same names.
        std::map<std::pair<OvxStringT, OvxStringT>, std::size_t> places;
        for (std::size_t i = 0; i < styles.size(); ++i)
            places.emplace(std::pair(styles[i].sheet, styles[i].name), i);
        children.resize(styles.size());
        for (std::size_t i = 0; i < styles.size(); ++i)
        {
            const auto parent = places.find({styles[i].parentSheet, styles[i].parent});
            (parent == places.end() ? roots : children[parent->second]).push_back(i);
        }
    }

    /// Calls `visit` with each style and its depth, parents first, siblings in the order of the sheet. Chains
    /// may be long, so that the walk keeps its own stack.
    template <class Visitor>
    void Walk(const Visitor& visit) const
    {
        std::vector<std::pair<std::size_t, std::size_t>> waiting;
        const auto enqueue = [&](const std::vector<std::size_t>& places, std::size_t depth)
        {
            for (auto place = places.rbegin(); place != places.rend(); ++place)
                waiting.emplace_back(*place, depth);
        };
        enqueue(roots, 0);
        while (!waiting.empty())
        {
            const auto [place, depth] = waiting.back();
            waiting.pop_back();
            visit(styles[place], depth);
            enqueue(children[place], depth + 1);
        }
    }

private:
    const std::vector<Workbench::NamedStyleFacts>& styles;
    std::vector<std::vector<std::size_t>> children; ///< For each style, as places in `styles`.
    std::vector<std::size_t> roots;
};

TextLine StyleToLine(const Workbench::NamedStyleFacts& style, std::size_t depth)
{
    OvxStringT name = style.name;
    if (style.displayName != style.name)
        name += OvxStringT(L" (") + style.displayName + OvxStringT(L")");
    if (style.isExternal)
        name += OvxStringT(L" [") + GetString(L"styles.external") + OvxStringT(L"]");
    OvxStringT own;
    for (const OvxStringT& path : style.own)
        own += (own.empty() ? OvxStringT() : OvxStringT(L", ")) + path;
    TextLine line;
    line.indent = 2 * depth;
    line.cells.push_back({name, OutputRole::Plain});
    line.cells.push_back({style.category, OutputRole::Faint});
    line.cells.push_back({Number(style.users), style.users == 0 ? OutputRole::Faint : OutputRole::Plain});
    line.cells.push_back({own, OutputRole::Local});
    return line;
}

} // namespace

std::vector<TextLine> ReportToText(const std::filesystem::path& file, const Workbench::Report& report)
{
    std::vector<TextLine> lines;
    const OvxStringT heading = ReferenceHost::PathToText(file) + OvxStringT(L": ") + SelectionToText(report);
    lines.push_back({{{heading, OutputRole::Heading}}, 0});
    for (const PanelReport& panel : report.panels)
        AppendPanel(lines, panel);
    return lines;
}

std::vector<TextLine> PresetRowsToText(const OvxStringT& presetName, const PanelReport& panel)
{
    std::vector<TextLine> lines;
    lines.push_back({{{presetName, OutputRole::Heading}}, 0});
    for (const RowReport& row : panel.rows)
        lines.push_back({{{GetString(row.description->label), OutputRole::Plain}, ValueCell(row)}, 2});
    if (panel.rows.empty())
        lines.push_back({{{GetString(L"preset.empty"), OutputRole::Faint}}, 2});
    return lines;
}

std::vector<TextLine> StylesToText(const std::vector<Workbench::NamedStyleFacts>& styles)
{
    std::vector<TextLine> lines(1);
    for (const OvxStringViewT key : {L"styles.name", L"styles.category", L"styles.users", L"styles.own"})
        lines.front().cells.push_back({GetString(OvxStringT(key)), OutputRole::Heading});
    StyleTree(styles).Walk([&](const Workbench::NamedStyleFacts& style, std::size_t depth)
                           { lines.push_back(StyleToLine(style, depth)); });
    return lines;
}

} // namespace Cli
