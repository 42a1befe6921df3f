// What commands tell beside what they change, in both forms: lists, presets, names.

#include "apps/cli/AnswerReport.h"

#include "apps/cli/JsonReport.h"
#include "apps/cli/TextReport.h"
#include "apps/workbench/PanelReading.h"
#include "apps/workbench/ValueText.h"
#include "host/resources/Resources.h"
#include "host/utils/Any.h"
#include "host/utils/Utf8.h"

#include <initializer_list>
#include <optional>

namespace Cli
{
namespace
{

using Framework::Resources::GetString;
using Json = nlohmann::ordered_json;
using ReferenceHost::PicturePart;
using ReferenceHost::PresetPicture;
using Workbench::PresetReport;
using Workbench::Restyled;
using Workbench::StyleList;
using Workbench::StyleListEntry;
using Lines = std::vector<TextLine>;
using Rgb = CLR_COLORSPEC::Rgb;

OvxStringT Fill(OvxStringViewT key, std::initializer_list<OvxStringT> inserts)
{
    return OvxStringT::FormatMessageInserts(GetString(key), inserts);
}

Lines OneLine(const OvxStringT& text)
{
    return {{{{text, OutputRole::Plain}}, 0}};
}

/// "#rrggbb".
OvxStringT ColourToText(Rgb colour)
{
    const auto value = Workbench::ToReportValue(OvxUtils::Any(CLR_COLORSPEC::FromRgb(colour)));
    return std::get<OvxStringT>(value.value());
}

OvxStringT Measure(int value, Workbench::NumberUnit unit)
{
    Workbench::RowDescription description;
    description.range = Workbench::NumberRange();
    description.range->unit = unit;
    Workbench::RowReport row;
    row.description = &description;
    row.value = value;
    return ValueToText(row);
}

/// The word for a type, as the panel of the category has it.
OvxStringT TypeToText(const PicturePart& part)
{
    return part.type.empty() ? OvxStringT()
                             : GetString(L"panel." + part.category + OvxStringT(L".type.") + part.type);
}

/// "Solid #264653 1 mm, 30 % transparent" as far as it shows.
OvxStringT PartToText(const PicturePart& part)
{
    if (part.type == L"none")
        return TypeToText(part);
    OvxStringT words = TypeToText(part);
    const auto add = [&](const OvxStringT& word) { words += (words.empty() ? L"" : L" ") + word; };
    if (!part.definition.empty())
        add(part.definition);
    if (part.colour && (part.type == L"solid" || part.type == L"dash"))
        add(ColourToText(*part.colour));
    if (part.widthInHundredthMm != 0)
        add(Measure(part.widthInHundredthMm, Workbench::NumberUnit::Millimetre));
    if (part.transparency != 0)
        add(Fill(L"preset.transparent", {Measure(part.transparency, Workbench::NumberUnit::Percent)}));
    return words;
}

TextLine PresetToLine(const PresetReport& preset)
{
    const PresetPicture picture = preset.picture.value_or(PresetPicture());
    return {{{preset.name, OutputRole::Plain},
             {PartToText(picture.fill), OutputRole::Plain},
             {PartToText(picture.outline), OutputRole::Plain}},
            0};
}

/// An entry as people see it: in the main list, which is a menu, "&&" stands for one "&".
TextLine EntryToLine(const StyleListEntry& entry, Workbench::StyleListPart part)
{
    OvxStringT text = entry.text;
    if (part == Workbench::StyleListPart::Main)
        text.Replace(L"&&", L"&");
    return {{{OvxStringT::Format(L"%d", static_cast<int>(entry.id)), OutputRole::Faint},
             {OvxStringT(entry.isChecked ? L"✓" : L" "), OutputRole::Plain},
             {text, OutputRole::Plain}},
            0};
}

/// The answer for people.
struct TextWriter
{
    const std::filesystem::path& file;

    Lines operator()(const CreatedStyle& created) const
    {
        return OneLine(Fill(L"edit.created", {created.name}));
    }

    Lines operator()(const OpenedStyle& opened) const { return OneLine(Fill(L"edit.opened", {opened.name})); }

    Lines operator()(const Workbench::Report& report) const
    {
        Lines lines = ReportToText(file, report);
        lines.push_back({});
        return lines;
    }

    Lines operator()(const StyleList& list) const
    {
        Lines lines;
        for (const StyleListEntry& entry : list.entries)
            lines.push_back(EntryToLine(entry, list.part));
        return list.entries.empty() ? OneLine(GetString(L"style-list.empty")) : lines;
    }

    Lines operator()(const Restyled& restyled) const
    {
        Lines lines = OneLine(restyled.style.empty() ? GetString(L"restyle.none")
                                                     : Fill(L"restyle.style", {restyled.style}));
        if (restyled.isFirstTargetOnly)
            lines.push_back({{{GetString(L"restyle.first-only"), OutputRole::Plain}}, 0});
        return lines;
    }

    Lines operator()(const ListedPresets& listed) const
    {
        Lines lines;
        for (const PresetReport& preset : listed.presets)
            lines.push_back(PresetToLine(preset));
        return listed.presets.empty() ? OneLine(Fill(L"preset.none", {listed.panel})) : lines;
    }

    Lines operator()(const ShownPreset& shown) const { return PresetRowsToText(shown.name, shown.report); }

    Lines operator()(const AddedPreset& added) const
    {
        return OneLine(Fill(added.isReplaced ? L"preset.replaced" : L"preset.added", {added.name}));
    }

    Lines operator()(const DeletedPreset& deleted) const
    {
        return OneLine(Fill(L"preset.deleted", {deleted.name}));
    }
};

Json PictureToJson(const PresetPicture& picture)
{
    Json json;
    for (const PicturePart& part : {picture.fill, picture.outline})
    {
        Json& member = json[OvxUtils::ToUtf8(part.category)];
        member["type"] = OptionalToJson(part.type);
        member["definition"] = OptionalToJson(part.definition);
        member["color"] = part.colour ? TextToJson(ColourToText(*part.colour)) : Json();
        member["transparency"] = part.transparency;
        member["width"] = part.widthInHundredthMm;
    }
    return json;
}

/// The answer for programs.
struct JsonWriter
{
    Json operator()(const CreatedStyle& created) const { return {{"created", TextToJson(created.name)}}; }

    Json operator()(const OpenedStyle& opened) const { return {{"style", TextToJson(opened.name)}}; }

    Json operator()(const Workbench::Report& report) const { return {{"report", ReportToJson(report)}}; }

    Json operator()(const StyleList& list) const
    {
        Json json;
        json["entries"] = Json::array();
        for (const StyleListEntry& entry : list.entries)
        {
            Json member;
            member["id"] = entry.id;
            member["text"] = TextToJson(entry.text);
            member["styleName"] = TextToJson(entry.styleName);
            member["check"] = entry.isChecked;
            json["entries"].push_back(std::move(member));
        }
        json["more"] = list.hasMore;
        return json;
    }

    Json operator()(const Restyled& restyled) const
    {
        return {{"restyled", OptionalToJson(restyled.style)},
                {"firstTargetOnly", restyled.isFirstTargetOnly}};
    }

    Json operator()(const ListedPresets& listed) const
    {
        Json json;
        json["panel"] = TextToJson(listed.panel);
        json["presets"] = Json::array();
        for (const PresetReport& preset : listed.presets)
            json["presets"].push_back(
                {{"name", TextToJson(preset.name)},
                 {"picture", preset.picture ? PictureToJson(*preset.picture) : Json()}});
        return json;
    }

    Json operator()(const ShownPreset& shown) const
    {
        Json json;
        json["panel"] = TextToJson(shown.panel);
        json["preset"] = TextToJson(shown.name);
        json["rows"] = Json::array();
        for (const Workbench::RowReport& row : shown.report.rows)
            json["rows"].push_back({{"identifier", TextToJson(row.description->identifier)},
                                    {"property", TextToJson(row.description->property)},
                                    {"label", TextToJson(GetString(row.description->label))},
                                    {"value", ValueToJson(row.value)}});
        return json;
    }

    Json operator()(const AddedPreset& added) const
    {
        return {{"panel", TextToJson(added.panel)},
                {"added", TextToJson(added.name)},
                {"replaced", added.isReplaced}};
    }

    Json operator()(const DeletedPreset& deleted) const
    {
        return {{"panel", TextToJson(deleted.panel)}, {"deleted", TextToJson(deleted.name)}};
    }
};

} // namespace

std::vector<TextLine> AnswerToText(const EditAnswer& answer, const std::filesystem::path& file)
{
    return std::visit(TextWriter{file}, answer.content);
}

Json AnswerToJson(const EditAnswer& answer)
{
    return std::visit(JsonWriter(), answer.content);
}

} // namespace Cli
