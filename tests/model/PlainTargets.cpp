// Who is edited, what the section is called, and whether the styles behind the targets may be edited.

#include "tests/model/PlainPanel.h"

namespace LibraryModel
{

PlainPanel::PlainPanel(PlainHost& itsHost, PlainPresetDialog& itsDialog, std::string itsName)
    : category(KeyOf("fill")), host(itsHost), dialog(itsDialog), name(std::move(itsName))
{
}

void PlainPanel::StartAnew()
{
    ownStyles.clear();
    targetStyles.clear();
    objectStyles.clear();
    forceAmbiguous.clear();
    isDefaultStyles = isObjectProperties = hasParent = newStyleListBuilt = isForwarding = false;
    hasParentPending = true;
    activeIdentifier = sectionTitle = styleName = "";
    documentNode = PlainNode::NewList();
    resourceList = currentListItem = PlainNode();
    visibleLimit = 18;
    currentPreset = PlainItem();
    groupStyle = nullptr;
    groupPaths.clear();
    groupOverridePaths.clear();
    siblings.clear();

    hasApplicator = false;
    applicatorId = 0;
    if (context != nullptr)
    {
        host.Record("context.GetHostObject()");
        if (context->hasHostObject)
        {
            host.Record("hostObject.Query(41 1b 2c 4b ae 74 84 e8 45 ee 48 59 32 c8 40 f8)");
            host.Record("hostObject.Query(4b c7 8b 18 6a 43 a9 59 47 c7 d4 73 69 c0 b8 b5)");
            hasApplicator = context->hasApplicator;
            applicatorId = context->applicatorNumber;
        }
    }
    if (hasApplicator)
        host.Record("applicator.AttachDataSource(" + std::to_string(applicatorId) + ", " + name + ")");
    isObjectProperties = host.hasUserInterface && context == host.ObjectPropertiesContext();
}

void PlainPanel::Notify(const std::vector<std::string>& names)
{
    for (const std::string& each : names)
        host.Record(name + " notifies " + each);
}

void PlainPanel::SetTargetStyle(const std::vector<PlainStyle*>& styles, bool isDefault, const Path& path,
                                const std::set<Path>& forced)
{
    forceAmbiguous.clear();
    ImportForceAmbiguous(path, forced);
    ownStyles = styles;
    hasParentPending = true;
    isDefaultStyles = isDefault;
    bool ignoreCharacterStyles = false;
    if (!siblings.empty() && host.HasSource())
    {
        host.Record("source.ShouldIgnoreCharacterStyleSiblings()");
        ignoreCharacterStyles = host.ignoresCharacterStyles;
    }
    const std::string displayName = DisplayNameOf(category);
    sectionTitle.clear();
    targetStyles = ownStyles;

    const std::string parentName = GetStyleNameBasedOnHeirarchy(GetTargetStyle(0));
    if (!parentName.empty())
    {
        const std::string display = host.GetDisplayStyleName(parentName);
        sectionTitle = Fill(ShownText("e14efa70-e60c-4529-b1d8-e5e8cc8d6c4a"), {displayName, display});
    }
    if (sectionTitle.empty())
        sectionTitle = displayName;
    sectionTitle = Escape(sectionTitle);

    styleName.clear();
    if (!siblings.empty())
        MergeSiblings(ignoreCharacterStyles);
    if (targetStyles.empty())
        targetStyles = ownStyles;
    if (!targetStyles.empty() && host.HasSource())
    {
        if (const PlainSheet* sheet = host.GetStyleSheet())
            styleName = host.GetStyleName(*sheet, targetStyles.front());
    }
    Notify({"SectionTitle"});
}

bool PlainPanel::TakesPart(const PlainPanel* sibling) const
{
    return sibling != nullptr && sibling != this && !sibling->isObjectProperties && !sibling->isDefaultStyles;
}

void PlainPanel::MergeSiblings(bool ignoreCharacterStyles)
{
    targetStyles.clear();
    if (!isDefaultStyles)
        targetStyles = ownStyles;
    const Key character = KeyOf("character");
    for (PlainPanel* sibling : siblings)
    {
        if (!TakesPart(sibling))
            continue;
        for (std::size_t j = 0; j < sibling->targetStyles.size(); ++j)
        {
            PlainStyle* style = sibling->GetTargetStyle(j);
            if (style == nullptr)
                continue;
            const bool isCharacter = style->category == character ||
                                     (style->owner != nullptr && style->owner->category == character);
            if (!ignoreCharacterStyles || !isCharacter)
                targetStyles.push_back(style);
        }
    }
}

void PlainPanel::SetObjectStyles(const std::vector<std::pair<PlainStyle*, std::size_t>>& entries)
{
    if (entries.size() != objectStyles.size())
        SelectNoPreset();
    else if (!entries.empty() && entries.front().second != objectStyles.front().second)
        SelectNoPreset();
    objectStyles = entries;
}

PlainStyle* PlainPanel::GetTargetStyle(std::size_t index)
{
    if (index >= targetStyles.size())
        return nullptr;
    Path path = {category};
    if (hasApplicator)
    {
        host.Record("applicator.GetTargetPath(" + std::to_string(applicatorId) + ")");
        if (!host.targetPath.empty())
            path = host.targetPath;
    }
    PlainStyle* style = targetStyles[index];
    for (const Key key : path)
        style = StyleOrMadeSubstyle(style, key);
    return style;
}

std::string PlainPanel::GetSectionTitle()
{
    if (sectionTitle.empty())
        sectionTitle = DisplayNameOf(category);
    return sectionTitle;
}

int PlainPanel::IsStyle()
{
    if (styleName.empty())
        return 0;
    return host.IsExcludedStyleName(styleName) ? 0 : 1;
}

std::optional<std::size_t> PlainPanel::GetObjectFromStyle(PlainStyle* style) const
{
    for (const auto& [key, object] : objectStyles)
    {
        if (key == style)
            return object;
    }
    return std::nullopt;
}

std::string PlainPanel::GetStyleNameBasedOnHeirarchy(PlainStyle* style)
{
    if (style == nullptr || !HasParent() || !host.HasSource())
        return {};
    const PlainSheet* sheet = host.GetStyleSheet();
    if (style->IsExternal())
        sheet = host.GetExternalStyleSheet(style->Outermost().sheetName);
    if (sheet == nullptr)
        return {};
    std::string found = host.GetStyleName(*sheet, style->parent);
    if (found.empty() && style->owner != nullptr)
        found = host.GetStyleName(*sheet, style->owner->parent);
    return found;
}

int PlainPanel::GetEnableStyleEditing()
{
    if (!IsEditable(KeyOf("style")))
        return 0;
    const PlainStyle* style = GetTargetStyle(0);
    if (style == nullptr)
        style = FirstTarget();
    if (style != nullptr && (!style->IsExternal() || !style->Outermost().link.empty()))
        style = style->owner;
    return IsEditable(style == nullptr ? Key() : style->category) ? 1 : 0;
}

bool PlainPanel::IsEditable(Key ofCategory) const
{
    bool result = true;
    for (PlainStyle* target : targetStyles)
    {
        if (target == nullptr)
            continue;
        bool climbed = false;
        const auto climb = [&climbed](const PlainStyle* from)
        {
            climbed = climbed || from->parent != nullptr;
            return from->parent != nullptr ? from->parent : from->owner;
        };

        PlainStyle* style = StyleOrSubstyle(target, ofCategory);
        for (PlainStyle* reached = target; style == nullptr;)
        {
            reached = climb(reached);
            if (reached == nullptr)
                break;
            style = StyleOrSubstyle(reached, ofCategory);
        }
        while (style != nullptr)
        {
            result = result && (!style->IsExternal() || !style->Outermost().link.empty());
            if (climbed)
                break;
            style = climb(style);
        }
    }
    return result;
}

} // namespace LibraryModel
