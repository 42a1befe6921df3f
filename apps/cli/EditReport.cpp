#include "apps/cli/EditReport.h"

#include "apps/cli/AnswerReport.h"
#include "apps/cli/JsonReport.h"
#include "apps/cli/TextReport.h"
#include "apps/workbench/PanelReading.h"
#include "apps/workbench/ValueText.h"
#include "host/resources/Resources.h"
#include "reference_host/services/NativePaths.h"

#include <initializer_list>
#include <unordered_map>
#include <utility>

namespace Cli
{
namespace
{

using Framework::Resources::GetString;
using ReferenceHost::PathToText;
using Workbench::Change;
using Workbench::RowDescription;

/// The rows of panels by the names that people give them, such as "fill.color".
using RowsByName = std::unordered_map<OvxStringT, const RowDescription*>;

RowsByName RowsOf(const std::vector<Workbench::PanelDescription>& panels)
{
    RowsByName rows;
    for (const Workbench::PanelDescription& panel : panels)
    {
        for (const RowDescription& row : panel.rows)
            rows.emplace(panel.name + OvxStringT(L".") + row.identifier, &row);
    }
    return rows;
}

OvxStringT Fill(OvxStringViewT key, std::initializer_list<OvxStringT> inserts)
{
    return OvxStringT::FormatMessageInserts(GetString(OvxStringT(key)), inserts);
}

TextCell ValueCell(const RowDescription& row, const Workbench::ReportValue& value, const OvxStringT& link)
{
    if (std::holds_alternative<std::monostate>(value))
        return {GetString(L"value.unset"), OutputRole::Faint};
    Workbench::RowReport report;
    report.description = &row;
    report.value = value;
    OvxStringT text = ValueToText(report);
    if (!link.empty())
        text += OvxStringT(L" (") + link + OvxStringT(L")");
    return {text, OutputRole::Plain};
}

OutputRole RoleOf(ActivePropertyState state)
{
    switch (state)
    {
    case ActivePropertyState::Overridden:
        return OutputRole::Local;
    case ActivePropertyState::Inherited:
        return OutputRole::Inherited;
    case ActivePropertyState::Ambiguous:
    case ActivePropertyState::AmbiguousParent:
        return OutputRole::Ambiguous;
    case ActivePropertyState::None:
        break;
    }
    return OutputRole::Plain;
}

TextLine ChangeToLine(const Change& change, const RowsByName& rows)
{
    static const RowDescription kPlainRow;
    const auto found = rows.find(change.property);
    const RowDescription& row = found == rows.end() ? kPlainRow : *found->second;
    TextLine line;
    line.indent = 2;
    line.cells.push_back({change.id, OutputRole::Plain});
    line.cells.push_back({change.property, OutputRole::Plain});
    line.cells.push_back(ValueCell(row, change.from, change.fromLink));
    line.cells.push_back({L"→", OutputRole::Faint});
    line.cells.push_back(ValueCell(row, change.to, change.toLink));
    // An entry of the palette is no row of a panel, and has no state that would mean something.
    if (found != rows.end())
        line.cells.push_back(
            {GetString(OvxStringT(L"state.") + Workbench::StateName(change.state)), RoleOf(change.state)});
    return line;
}

/// Tells whether a row has no value, before and now: that its state is another means nothing to people.
bool IsUnset(const Change& change)
{
    return std::holds_alternative<std::monostate>(change.from) &&
           std::holds_alternative<std::monostate>(change.to);
}

OvxStringT SavingToText(const EditResult& result)
{
    const OvxStringT file = PathToText(result.file);
    if (result.isDryRun)
        return Fill(L"edit.dry-run", {file});
    if (result.savedAs.empty())
        return Fill(L"edit.not-saved", {file});
    if (result.savedAs == result.file)
        return Fill(L"edit.saved", {file});
    return Fill(L"edit.saved-as", {file, PathToText(result.savedAs)});
}

std::vector<TextLine> ChangesToText(const EditResult& result,
                                    const std::vector<Workbench::PanelDescription>& panels)
{
    std::vector<TextLine> lines;
    lines.push_back({{{SavingToText(result), OutputRole::Heading}}, 0});
    for (const std::filesystem::path& sheet : result.savedSheets)
        lines.push_back({{{Fill(L"edit.saved-sheet", {PathToText(sheet)}), OutputRole::Heading}}, 0});
    if (result.changes.empty())
        lines.push_back({{{GetString(L"edit.no-change"), OutputRole::Faint}}, 2});
    const RowsByName rows = RowsOf(panels);
    for (const Change& change : result.changes)
    {
        if (!IsUnset(change))
            lines.push_back(ChangeToLine(change, rows));
    }
    return lines;
}

} // namespace

std::string EditResultToText(const EditResult& result, const std::vector<Workbench::PanelDescription>& panels,
                             Colouring colouring)
{
    std::string text;
    for (const EditAnswer& answer : result.answers)
        text += LayOut(AnswerToText(answer, result.file), colouring);
    return text + LayOut(ChangesToText(result, panels), colouring);
}

std::string EditResultToJson(const EditResult& result)
{
    JsonDocument document(result.file, "changes");
    for (const Change& change : result.changes)
        document.Add(ChangeToJson(change));
    nlohmann::ordered_json members;
    members["steps"] = result.steps;
    if (result.isScript)
        members["answers"] = nlohmann::ordered_json::array();
    for (const EditAnswer& answer : result.answers)
    {
        nlohmann::ordered_json told;
        if (result.isScript)
            told["line"] = answer.line;
        (result.isScript ? told : members).update(AnswerToJson(answer));
        if (result.isScript)
            members["answers"].push_back(std::move(told));
    }
    return document.Finish(members);
}

} // namespace Cli
