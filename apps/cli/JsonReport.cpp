#include "apps/cli/JsonReport.h"

#include "apps/workbench/PanelReading.h"
#include "host/resources/Resources.h"
#include "host/utils/Utf8.h"
#include "reference_host/services/NativePaths.h"

#include <utility>

namespace Cli
{
namespace
{

using Json = nlohmann::ordered_json;
using Workbench::PanelReport;
using Workbench::ReportValue;
using Workbench::RowOrigin;
using Workbench::RowReport;

Json TextsToJson(const std::vector<OvxStringT>& texts)
{
    Json list = Json::array();
    for (const OvxStringT& text : texts)
        list.push_back(TextToJson(text));
    return list;
}

Json OriginToJson(const RowOrigin& origin)
{
    switch (origin.kind)
    {
    case RowOrigin::Kind::Local:
        return {{"kind", "local"}};
    case RowOrigin::Kind::Style:
        return {{"kind", "style"}, {"style", TextToJson(origin.style)}};
    case RowOrigin::Kind::Default:
        return {{"kind", "default"}};
    case RowOrigin::Kind::None:
        break;
    }
    return {};
}

Json RowToJson(const RowReport& row)
{
    Json json;
    json["identifier"] = TextToJson(row.description->identifier);
    json["property"] = TextToJson(row.description->property);
    json["label"] = TextToJson(Framework::Resources::GetString(row.description->label));
    json["value"] = ValueToJson(row.value);
    json["ambiguous"] = row.isAmbiguous;
    json["state"] = TextToJson(Workbench::StateName(row.state));
    json["origin"] = OriginToJson(row.origin);
    json["link"] = OptionalToJson(row.link);
    json["image"] = TextToJson(row.image);
    json["tooltip"] = TextToJson(row.tooltip);
    return json;
}

Json PanelToJson(const PanelReport& panel)
{
    Json json;
    json["panel"] = TextToJson(panel.description->name);
    json["title"] = TextToJson(panel.title);
    json["hasTargets"] = panel.hasTargets;
    json["isDefaults"] = panel.isDefaults;
    json["styleName"] = TextToJson(panel.styleName);
    json["properties"] = Json::object();
    for (const Workbench::PropertyReport& property : panel.properties)
        json["properties"][OvxUtils::ToUtf8(property.name)] = ValueToJson(property.value);
    json["rows"] = Json::array();
    for (const RowReport& row : panel.rows)
        json["rows"].push_back(RowToJson(row));
    return json;
}

Json TargetToJson(const Workbench::TargetReport& target)
{
    Json json;
    json["id"] = TextToJson(target.id);
    json["name"] = TextToJson(target.name);
    json["kind"] = TextToJson(target.kind);
    json["style"] = OptionalToJson(target.style);
    json["parents"] = TextsToJson(target.parents);
    json["units"] = target.units;
    return json;
}

/// Texts from outside, a file's name above all, need not be UTF-8: what is not becomes U+FFFD.
std::string Dump(const Json& json)
{
    constexpr int kOnOneLine = -1;
    constexpr bool kOnlyAscii = true;
    return json.dump(kOnOneLine, ' ', !kOnlyAscii, Json::error_handler_t::replace);
}

} // namespace

Json ValueToJson(const ReportValue& value)
{
    if (const auto* number = std::get_if<int>(&value))
        return *number;
    if (const auto* text = std::get_if<OvxStringT>(&value))
        return TextToJson(*text);
    return {};
}

Json TextToJson(OvxStringViewT text)
{
    return OvxUtils::ToUtf8(text);
}

Json OptionalToJson(const OvxStringT& text)
{
    return text.empty() ? Json() : TextToJson(text);
}

Json ReportToJson(const Workbench::Report& report)
{
    Json json;
    json["selection"]["selector"] = TextToJson(report.selector);
    json["selection"]["targets"] = Json::array();
    for (const Workbench::TargetReport& target : report.targets)
        json["selection"]["targets"].push_back(TargetToJson(target));
    json["panels"] = Json::array();
    for (const PanelReport& panel : report.panels)
        json["panels"].push_back(PanelToJson(panel));
    return json;
}

Json StyleToJson(const Workbench::NamedStyleFacts& style)
{
    Json json;
    json["name"] = TextToJson(style.name);
    json["displayName"] = TextToJson(style.displayName);
    json["parent"] = OptionalToJson(style.parent);
    json["category"] = TextToJson(style.category);
    json["own"] = TextsToJson(style.own);
    json["users"] = style.users;
    json["external"] = style.isExternal;
    json["sheet"] = OptionalToJson(style.sheet);
    return json;
}

Json ChangeToJson(const Workbench::Change& change)
{
    Json json;
    json["id"] = TextToJson(change.id);
    json["property"] = TextToJson(change.property);
    json["from"] = ValueToJson(change.from);
    json["to"] = ValueToJson(change.to);
    json["state"] = TextToJson(Workbench::StateName(change.state));
    json["fromLink"] = OptionalToJson(change.fromLink);
    json["toLink"] = OptionalToJson(change.toLink);
    return json;
}

std::string FormatJson(const Json& document)
{
    return Dump(document) + "\n";
}

JsonDocument::JsonDocument(const std::filesystem::path& file, const std::string& listName)
    : text("{\"file\": " + Dump(ReferenceHost::PathToUtf8(file)) + ", " + Dump(listName) + ": [")
{
}

void JsonDocument::Add(const Json& piece)
{
    text += isEmpty ? "\n" : ",\n";
    text += Dump(piece);
    isEmpty = false;
}

std::string JsonDocument::Finish(const Json& members)
{
    text += isEmpty ? "]" : "\n]";
    for (const auto& member : members.items())
        text += ", " + Dump(member.key()) + ": " + Dump(member.value());
    text += "}\n";
    return std::move(text);
}

} // namespace Cli
