#include "tests/model/Answers.h"

#include "host/data_binding/ID_CString.h"

namespace LibraryModel
{

namespace
{

/// A bound name with the heading under which its value is told.
struct Heading
{
    explicit Heading(const wchar_t* bound) : name(bound), text(Describe(name) + ": ") {}

    OvxStringT name;
    std::string text;
};

const std::vector<Heading>& NumberHeadings()
{
    static const std::vector<Heading> headings = {
        Heading(L"RevertToParentEnable"), Heading(L"BreakColorResourceEnable"),
        Heading(L"ApplyToParentEnable"),  Heading(L"CreateStyleFromEnable"),
        Heading(L"IsObjectStyle"),        Heading(L"IsStyle"),
        Heading(L"IsStyleOrDefault"),     Heading(L"EditStyleEnable"),
        Heading(L"IsObjectProperties"),   Heading(L"BaseStylePropertiesDatasourceOkEnabled"),
        Heading(L"EnableStyleEditing"),   Heading(L"AddPresetEnabled"),
        Heading(L"DeletePresetEnabled")};
    return headings;
}

const std::vector<Heading>& TextHeadings()
{
    static const std::vector<Heading> headings = {
        Heading(L"ActiveIdentifier"), Heading(L"SectionTitle"), Heading(L"RevertToMenuString"),
        Heading(L"ApplyToMenuString"), Heading(L"EditStyleMenuString")};
    return headings;
}

/// A number, or that reading it failed as it must for what is no colour.
std::string ReadNumber(const DrivenPanel& panel, const OvxStringT& name)
{
    try
    {
        return std::to_string(panel.Read<int>(name));
    }
    catch (const std::bad_cast&)
    {
        return "bad_cast";
    }
}

std::string AskBy(DrivenPanel& panel, const wchar_t* name)
{
    const OvxUtils::Any request{ID_CString{panel.GetActiveIdentifier(), L"unanswered"}};
    panel.Write<OvxUtils::Any>(name, request);
    return Describe(request.Get<ID_CString>().result);
}

std::string TextOf(const WCmnUI_ListItem& item)
{
    return std::to_string(item.GetIndex()) + ": " + Describe(item.GetText());
}

void AddTargetAnswers(const DrivenPanel& panel, const CallLog& names, Lines& answers)
{
    answers.push_back("targets: " + names.NamesOfStyles(panel.GetTargetStyles()));
    answers.push_back("count: " + std::to_string(panel.GetNumTargetStyles()) +
                      DescribeFlag(panel.HasTargets()) + DescribeFlag(panel.AreTargetsDefaultStyles()) +
                      DescribeFlag(panel.IsObjectPropertiesContext()) + DescribeFlag(panel.IsObjectStyle()));
    answers.push_back("forced: " + Describe(panel.GetAmbiguousForce()));
    answers.push_back("has parent: " + DescribeFlag(panel.Private_HasParent()));
    for (const Path& path : AskedPaths())
        answers.push_back("ambiguous: " + DescribeFlag(panel.IsAmbiguous(ToHost(path))));
}

} // namespace

std::string TextOf(const WXmlNode& node)
{
    if (!node.IsValid())
        return "invalid";
    std::string text = "<" + Describe(node.GetName());
    for (const OvxStringT& name : node.GetAttributeNames())
        text += " " + Describe(name) + "='" + Describe(node.Attribute(L"@" + name).GetString()) + "'";
    text += ">";
    for (const WXmlNode& child : node.GetChildren())
        text += TextOf(child);
    return text;
}

std::string TextOf(const WCmnUI_List& list)
{
    std::string text;
    for (std::size_t i = 0; i < list.GetCount(); ++i)
        text += (i == 0 ? "" : ", ") + TextOf(*list.GetItem(i));
    return "[" + text + "]";
}

Lines AnswersOf(DrivenPanel& panel, const CallLog& names)
{
    Lines answers;
    AddTargetAnswers(panel, names, answers);
    for (const Heading& heading : NumberHeadings())
        answers.push_back(heading.text + ReadNumber(panel, heading.name));
    const bool isUnanswered = panel.Read<OvxUtils::Any>(L"PropertyIcon").IsEmpty() &&
                              panel.Read<OvxUtils::Any>(L"PropertyTooltip").IsEmpty();
    answers.push_back("PropertyIcon: " + AskBy(panel, L"PropertyIcon") + DescribeFlag(isUnanswered));
    answers.push_back("PropertyTooltip: " + AskBy(panel, L"PropertyTooltip"));
    for (const Heading& heading : TextHeadings())
        answers.push_back(heading.text + Describe(panel.Read<OvxStringT>(heading.name)));
    answers.push_back("ApplyStyleResource: " + std::to_string(panel.Read<unsigned>(L"ApplyStyleResource")));
    answers.push_back("CurrentListStyleItem: " + TextOf(panel.Read<WXmlNode>(L"CurrentListStyleItem")));
    answers.push_back("PropertyPanelStateIdentifier: " +
                      Describe(panel.Read<WCmnUI_Guid>(L"PropertyPanelStateIdentifier").GetText()));
    answers.push_back("CurrentPreset: " + TextOf(panel.Read<WCmnUI_ListItem>(L"CurrentPreset")));
    return answers;
}

Lines StyleLines(const LibraryWorld& world)
{
    Lines lines;
    for (const char* name : {"S2", "S3", "S4", "S5"})
        lines.push_back(name + (": " + Describe(world.Find(StyleRef{name, std::nullopt}))));
    return lines;
}

Lines DialogAnswers(const LibraryWorld& world)
{
    IReflectable& dialog = world.Dialog();
    return {"AddPresetName: " + Describe(dialog.Read<OvxStringT>(L"AddPresetName")),
            "AddPresetOkEnabled: " + DescribeFlag(dialog.Read<bool>(L"AddPresetOkEnabled"))};
}

} // namespace LibraryModel
