#include "apps/workbench/PanelReading.h"

#include "apps/workbench/Panel.h"
#include "host/colour/CLR_COLORSPEC.h"
#include "host/data_binding/ID_CString.h"
#include "host/utils/Utf8.h"
#include "reference_host/document/DocumentError.h"
#include "reference_host/services/NativePaths.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <typeinfo>
#include <utility>
#include <variant>

namespace Workbench
{
namespace
{

constexpr OvxStringViewT kStateNames[] = {L"None", L"Overridden", L"Inherited", L"Ambiguous",
                                          L"AmbiguousParent"};

[[noreturn]] void Fail(const PanelDescription& panel, const RowDescription& row, const std::string& problem,
                       const std::string& expected)
{
    throw ReferenceHost::DocumentError("the row " + OvxUtils::ToUtf8(row.identifier) + " answers " + problem,
                                       ReferenceHost::PathToUtf8(panel.file), expected);
}

OvxStringT HexColour(CLR_COLORSPEC::Rgb rgb)
{
    constexpr wchar_t kDigits[] = L"0123456789abcdef";
    std::wstring text = L"#";
    for (const std::uint8_t component : {rgb.red, rgb.green, rgb.blue})
    {
        text += kDigits[component / 16];
        text += kDigits[component % 16];
    }
    return OvxStringT(std::move(text));
}

/// Reads a number; an enable that throws for want of a colour is not enabled.
int ReadNumber(const IReflectable& panel, const OvxStringT& name)
{
    try
    {
        return panel.Read<int>(name);
    }
    catch (const std::bad_cast&)
    {
        return 0;
    }
}

/// Asks a question that is put by writing it: the answer comes back in the value that was written.
OvxStringT Ask(IReflectable& panel, OvxStringViewT property, const OvxStringT& identifier)
{
    const OvxUtils::Any question(ID_CString{identifier, {}});
    panel.WriteAny(property, question);
    return question.Get<ID_CString>().result;
}

/// A panel with what it has answered already: each answer is a walk over all targets.
struct AnsweringPanel
{
    IReflectable& panel;
    const PanelDescription& description;
    const std::vector<PropertyReport>& answered; ///< All its numbers and texts.

    /// The number or text bound to a name.
    template <class T>
    [[nodiscard]] T Read(const OvxStringT& name) const
    {
        const auto known = std::ranges::find(answered, name, &PropertyReport::name);
        const T* const value = known == answered.end() ? nullptr : std::get_if<T>(&known->value);
        return value == nullptr ? panel.Read<T>(name) : *value;
    }
};

ActivePropertyState ReadState(const AnsweringPanel& panel, const RowDescription& row)
{
    const int state = panel.Read<int>(row.property + kStateSuffix);
    if (state < 0 || state >= static_cast<int>(std::size(kStateNames)))
        Fail(panel.description, row, "the state " + std::to_string(state), "0 to 4");
    return static_cast<ActivePropertyState>(state);
}

RowReport ReadRow(const AnsweringPanel& panel, const RowDescription& row)
{
    const auto value = ToReportValue(panel.panel.ReadAny(row.property));
    if (!value)
        Fail(panel.description, row, "a value of an unknown type", "a colour, number, choice or text");
    const OvxStringT originText = panel.Read<OvxStringT>(row.property + kOriginSuffix);
    const auto origin = ParseOrigin(originText);
    if (!origin)
        Fail(panel.description, row, "the origin \"" + OvxUtils::ToUtf8(originText) + "\"",
             "\"local\", \"style:NAME\", \"default\" or nothing");
    RowReport report;
    report.description = &row;
    report.isAmbiguous = panel.Read<int>(row.property + kAmbiguousSuffix) != 0;
    if (!report.isAmbiguous)
        report.value = *value;
    report.state = ReadState(panel, row);
    report.origin = *origin;
    report.link = panel.Read<OvxStringT>(row.property + kLinkSuffix);
    report.image = Ask(panel.panel, L"PropertyIcon", row.identifier);
    report.tooltip = Ask(panel.panel, L"PropertyTooltip", row.identifier);
    return report;
}

} // namespace

std::optional<ReportValue> ToReportValue(const OvxUtils::Any& value)
{
    if (value.IsEmpty())
        return std::optional<ReportValue>(std::in_place);
    if (const auto* number = value.TryGet<int>())
        return *number;
    if (const auto* text = value.TryGet<OvxStringT>())
        return *text;
    if (const auto* colour = value.TryGet<CLR_COLORSPEC>())
        return HexColour(colour->ToRgb());
    if (auto choice = TargetHandover::TextOfChoice(value))
        return *std::move(choice);
    return std::nullopt;
}

std::optional<RowOrigin> ParseOrigin(OvxStringViewT text)
{
    constexpr OvxStringViewT kStylePrefix = L"style:";
    if (text.empty())
        return RowOrigin{};
    if (text == L"local")
        return RowOrigin{RowOrigin::Kind::Local, {}};
    if (text == L"default")
        return RowOrigin{RowOrigin::Kind::Default, {}};
    if (text.starts_with(kStylePrefix))
        return RowOrigin{RowOrigin::Kind::Style, OvxStringT(text.substr(kStylePrefix.size()))};
    return std::nullopt;
}

OvxStringViewT StateName(ActivePropertyState state)
{
    return kStateNames[static_cast<std::size_t>(state)];
}

std::vector<PropertyReport> ReadProperties(const IReflectable& panel)
{
    std::vector<PropertyReport> properties;
    for (const OvxStringT& name : panel.GetNames())
    {
        if (!panel.HasProperty(name))
            continue;
        const RuntimeType type = panel.GetTypeOf(name);
        if (type.Is<int>())
            properties.push_back({name, ReadNumber(panel, name)});
        else if (type.Is<OvxStringT>())
            properties.push_back({name, panel.Read<OvxStringT>(name)});
    }
    return properties;
}

PanelReport ReadPanel(IReflectable& panel, const PanelDescription& description, const HandedTargets& handed)
{
    panel.Write<OvxStringT>(L"ActiveIdentifier", OvxStringT());
    PanelReport report;
    report.description = &description;
    report.title = panel.Read<OvxStringT>(L"SectionTitle");
    report.hasTargets = handed.hasTargets;
    report.isDefaults = handed.isDefaults;
    report.styleName = handed.styleName;
    report.properties = ReadProperties(panel);
    const AnsweringPanel answering{panel, description, report.properties};
    for (const RowDescription& row : description.rows)
        report.rows.push_back(ReadRow(answering, row));
    return report;
}

} // namespace Workbench
