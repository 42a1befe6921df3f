#include "tests/model/Answers.h"

#include "tests/model/PlainDescription.h"

namespace LibraryModel
{

namespace
{

std::string TextOf(const PlainItem& item)
{
    return std::to_string(item.index) + ": " + item.text;
}

void AddTargetAnswers(PlainPanel& panel, Lines& answers)
{
    answers.push_back("targets: " + NamesOf(panel.targetStyles));
    answers.push_back("count: " + std::to_string(panel.targetStyles.size()) +
                      Tell(!panel.targetStyles.empty()) + Tell(panel.isDefaultStyles) +
                      Tell(panel.isObjectProperties) + Tell(panel.styleName.empty()));
    answers.push_back("forced: " + Tell(panel.forceAmbiguous));
    answers.push_back("has parent: " + Tell(panel.PrivateHasParent()));
    for (const Path& path : AskedPaths())
        answers.push_back("ambiguous: " + Tell(panel.IsAmbiguous(path)));
}

void AddNumbers(PlainPanel& panel, Lines& answers)
{
    const auto add = [&answers](const std::string& name, int number)
    { answers.push_back(name + ": " + std::to_string(number)); };

    add("RevertToParentEnable", panel.GetApplyToParentEnable());
    const std::optional<int> breaks = panel.GetBreakColorResourceEnable();
    answers.push_back("BreakColorResourceEnable: " +
                      (breaks.has_value() ? std::to_string(*breaks) : "bad_cast"));
    add("ApplyToParentEnable", panel.GetApplyToParentEnable());
    add("CreateStyleFromEnable", panel.GetCreateStyleFromEnable());
    add("IsObjectStyle", panel.styleName.empty() ? 1 : 0);
    add("IsStyle", panel.IsStyle());
    add("IsStyleOrDefault", panel.styleName.empty() ? 0 : 1);
    add("EditStyleEnable", panel.GetEditStyleEnable());
    add("IsObjectProperties", panel.isObjectProperties ? 1 : 0);
    add("BaseStylePropertiesDatasourceOkEnabled", panel.currentListItem.tree != nullptr ? 1 : 0);
    add("EnableStyleEditing", panel.GetEnableStyleEditing());
    add("AddPresetEnabled", panel.IsAddPresetEnabled());
    add("DeletePresetEnabled", panel.IsDeletePresetEnabled());
}

} // namespace

const Paths& AskedPaths()
{
    static const Paths paths = {PathOf("color"), PathOf("type"), PathOf("glow.shade"), {}};
    return paths;
}

std::string TextOf(const PlainList& list)
{
    std::vector<std::string> texts;
    for (const PlainItem& item : list)
        texts.push_back(TextOf(item));
    return "[" + Join(texts, ", ") + "]";
}

Lines AnswersOf(PlainPanel& panel)
{
    Lines answers;
    AddTargetAnswers(panel, answers);
    AddNumbers(panel, answers);
    answers.push_back("PropertyIcon: " + panel.PropertyIcon(panel.activeIdentifier) + Tell(true));
    answers.push_back("PropertyTooltip: " + panel.PropertyTooltip(panel.activeIdentifier));
    answers.push_back("ActiveIdentifier: " + panel.activeIdentifier);
    answers.push_back("SectionTitle: " + panel.GetSectionTitle());
    answers.push_back("RevertToMenuString: " + panel.MenuString("f6dd6f91-646d-4758-ba17-db358538fa3e"));
    answers.push_back("ApplyToMenuString: " + panel.MenuString("6d36d862-aac1-4e48-a9eb-2ac57f1862b1"));
    answers.push_back("EditStyleMenuString: " + panel.MenuString("a17f1a53-850c-459c-81df-297c75d6e567"));
    answers.push_back("ApplyStyleResource: 0");
    answers.push_back("CurrentListStyleItem: " + panel.currentListItem.Text());
    answers.push_back("PropertyPanelStateIdentifier: " + panel.GetPropertyPanelStateIdentifier());
    answers.push_back("CurrentPreset: " + TextOf(panel.GetCurrentPreset()));
    return answers;
}

Lines StyleLines(const PlainWorld& world)
{
    Lines lines;
    for (const char* name : {"S2", "S3", "S4", "S5"})
        lines.push_back(name + (": " + Tell(world.Find(StyleRef{name, std::nullopt}))));
    return lines;
}

Lines DialogAnswers(const PlainWorld& world)
{
    return {"AddPresetName: " + world.dialog.presetName,
            "AddPresetOkEnabled: " + Tell(!world.dialog.presetName.empty())};
}

} // namespace LibraryModel
