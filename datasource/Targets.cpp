// Who is being edited, and what the section is called. Keeps the targets, their objects, the title and the
// style name; the predicates on editing stand in StyleEditing, values and states in PropertyState.

#include "datasource/BaseStylePropertiesDatasource.h"
#include "datasource/Rollback.h"
#include "host/resources/Resources.h"
#include "host/style_model/CategoryNames.h"
#include "host/style_model/IStylesSource.h"
#include "host/style_model/IStylesSourceApp.h"
#include "host/style_model/StyleManager.h"
#include "module/StylesCommon.h"

using namespace Styles;

namespace
{

/// "%1" is the category, "%2" the style that is inherited from.
constexpr OvxStringViewT kTitlePatternKey = L"e14efa70-e60c-4529-b1d8-e5e8cc8d6c4a";

constexpr OvxStringViewT kNoPresetTextKey = L"f5cefe53-8452-41c0-888b-b882ff5a4ba0";

OvxStringT DisplayNameOf(const std::shared_ptr<StyleCategory>& category)
{
    return category == nullptr ? OvxStringT() : category->GetDisplayName();
}

std::shared_ptr<StyleCategory> FindCategory(const PropertyKey& name)
{
    return OvxUtils::Singleton<StyleManager>::GetInstance().GetCategory(name);
}

bool IsCharacterStyle(const Style& style)
{
    const PropertyKey character = GetCharacterStyleCategoryName();
    const Style* owner = style.GetOwner();
    return style.GetCategoryName() == character ||
           (owner != nullptr && owner->GetCategoryName() == character);
}

OvxStringT FindSheetName(const Style* style)
{
    IStylesSource* source = style == nullptr ? nullptr : StylesCommon::GetActiveStyleSource();
    const StyleSheet* sheet = source == nullptr ? nullptr : source->GetStyleSheet();
    return sheet == nullptr ? OvxStringT() : sheet->GetStyleName(style);
}

} // namespace

void BaseStylePropertiesDatasource::SetTargetStyle(const std::vector<Style*>& styles, bool isDefault,
                                                   const PropertyPath& path,
                                                   const std::set<PropertyPath>& newForceAmbiguous)
{
    Rollback before(forceAmbiguous, ownStyles, targetStyles, hasParent, hasParentPending, isDefaultStyles,
                    ignoreCharacterStyleSiblings, sectionTitle, styleName);
    ClearForceAmbiguous();
    ImportForceAmbiguous(path, newForceAmbiguous);
    ownStyles = StylesToSubStyles(styles);
    hasParentPending = true;
    isDefaultStyles = isDefault;
    ignoreCharacterStyleSiblings = ShouldIgnoreCharacterStyleSiblings();
    const std::shared_ptr<StyleCategory> category = FindCategory(GetCategory());
    sectionTitle = OvxStringT();
    targetStyles = ownStyles;

    // The title and the has-parent value look at the own styles alone; the style name below looks at the
    // merged list. The order is deliberate.
    sectionTitle = MakeSectionTitle(DisplayNameOf(category));
    styleName = OvxStringT();
    MergeSiblingTargets();
    styleName = FindSheetName(GetFirstTarget());
    before.Keep();

    UpdateListeners(L"SectionTitle");
}

void BaseStylePropertiesDatasource::SetTargetStyle(const std::vector<Style*>& styles, bool isDefault,
                                                   PropertyKey key,
                                                   const std::set<PropertyPath>& newForceAmbiguous)
{
    SetTargetStyle(styles, isDefault, MakePath(key), newForceAmbiguous);
}

OvxStringT BaseStylePropertiesDatasource::MakeSectionTitle(const OvxStringT& categoryDisplayName) const
{
    OvxStringT title;
    const OvxStringT name = GetStyleNameBasedOnHeirarchy(GetTargetStyle(0));
    if (!name.empty())
    {
        const OvxStringT display = StylesCommon::StylesApp().GetDisplayStyleName(name);
        title = OvxStringT::FormatMessageInserts(Framework::Resources::GetString(kTitlePatternKey),
                                                 {categoryDisplayName, display});
    }
    if (title.empty())
        title = categoryDisplayName;

    // A label shows a doubled ampersand as one.
    title.Replace(L"&", L"&&");
    return title;
}

void BaseStylePropertiesDatasource::MergeSiblingTargets()
{
    if (!siblings.empty())
    {
        targetStyles.clear();
        if (!isDefaultStyles)
            targetStyles = ownStyles;
        // Room for all at once: a list that grows as it is filled is copied more often the more targets there
        // are.
        std::size_t further = 0;
        for (const SiblingEntry& entry : siblings)
            further += entry.sibling == nullptr ? 0 : entry.sibling->targetStyles.size();
        targetStyles.reserve(targetStyles.size() + further);
        for (std::size_t index = 0; index < siblings.size(); ++index)
        {
            const BaseStylePropertiesDatasource* sibling = siblings[index].sibling;
            if (TakesPartAsSibling(sibling))
                AppendTargetsOf(*sibling);
        }
    }
    if (targetStyles.empty())
        targetStyles = ownStyles;
}

void BaseStylePropertiesDatasource::AppendTargetsOf(const BaseStylePropertiesDatasource& sibling)
{
    for (std::size_t index = 0; index < sibling.GetNumTargetStyles(); ++index)
    {
        Style* style = sibling.GetTargetStyle(index);
        if (style == nullptr || (ignoreCharacterStyleSiblings && IsCharacterStyle(*style)))
            continue;
        targetStyles.emplace_back(style);
    }
}

void BaseStylePropertiesDatasource::SetObjectStyles(const std::map<Style*, std::size_t>& newObjectStyles)
{
    std::map<Style*, std::size_t> taken = newObjectStyles;
    // Only the objects are compared: other styles of the same objects leave the preset selected.
    const bool sizesDiffer = newObjectStyles.size() != objectStyles.size();
    if (sizesDiffer ||
        (!newObjectStyles.empty() && newObjectStyles.begin()->second != objectStyles.begin()->second))
        SelectNoPreset();

    objectStyles.swap(taken);
}

void BaseStylePropertiesDatasource::ClearObjectStyles()
{
    SetObjectStyles({});
}

void BaseStylePropertiesDatasource::SelectNoPreset()
{
    if (!PresetCategoryName().empty())
        currentPreset.SetText(Framework::Resources::GetString(kNoPresetTextKey));
    currentPreset.SetIndex(-1);
}

WNodeHandle* BaseStylePropertiesDatasource::GetObjectFromStyle(Style* style) const
{
    const auto found = objectStyles.find(style);
    return found == objectStyles.end() ? nullptr : reinterpret_cast<WNodeHandle*>(found->second);
}

std::vector<Style*> BaseStylePropertiesDatasource::GetTargetStyles() const
{
    return SubStylesToStyles(targetStyles);
}

Style* BaseStylePropertiesDatasource::GetTargetStyle(std::size_t index) const
{
    if (index >= targetStyles.size())
        return nullptr;

    return styleApplicator == nullptr ? GetStyleOrSubstyle(targetStyles[index], GetCategory(), true)
                                      : FollowApplicatorPath(index);
}

Style* BaseStylePropertiesDatasource::FollowApplicatorPath(std::size_t index) const
{
    const PropertyPath path = styleApplicator->GetTargetPath(styleApplicatorID);
    if (path.empty())
        return GetStyleOrSubstyle(targetStyles[index], GetCategory(), true);

    Style* style = targetStyles[index];
    for (const PropertyKey& key : path)
        style = GetStyleOrSubstyle(style, key, true);
    return style;
}

std::size_t BaseStylePropertiesDatasource::GetNumTargetStyles() const
{
    return targetStyles.size();
}

bool BaseStylePropertiesDatasource::HasTargets() const
{
    return !targetStyles.empty();
}

int BaseStylePropertiesDatasource::IsStyle() const
{
    if (styleName.empty())
        return 0;
    return StylesCommon::StylesApp().IsExcludedStyleName(styleName) ? 0 : 1;
}

PropertyKey BaseStylePropertiesDatasource::GetCategory() const
{
    return PropertyKey::Empty;
}

PropertyPaths BaseStylePropertiesDatasource::GetStyleCategoryProperties(Style* style) const
{
    return MakePaths(Styles::GetStyleCategoryProperties(*style));
}

OvxStringT BaseStylePropertiesDatasource::GetSectionTitle()
{
    // Filled as it is here, without doubled ampersands: only SetTargetStyle escapes. Deliberate.
    if (sectionTitle.empty())
        sectionTitle = DisplayNameOf(FindCategory(GetCategory()));
    return sectionTitle;
}

OvxStringT BaseStylePropertiesDatasource::GetStyleNameBasedOnHeirarchy(Style* style) const
{
    // The has-parent value is refreshed before the source is asked for, and for null not at all.
    if (style == nullptr || !HasParent())
        return {};
    IStylesSource* source = StylesCommon::GetActiveStyleSource();
    if (source == nullptr)
        return {};

    const StyleSheet* sheet = source->GetStyleSheet();
    if (style->IsExternal())
        sheet = source->GetExternalStyleSheet(style->GetExternalStyleSheetName());
    if (sheet == nullptr)
        return {};

    OvxStringT name = sheet->GetStyleName(style->GetParent());
    const Style* owner = style->GetOwner();
    if (name.empty() && owner != nullptr)
        name = sheet->GetStyleName(owner->GetParent());
    return name;
}

Style* BaseStylePropertiesDatasource::GetFirstTarget() const
{
    return targetStyles.empty() ? nullptr : static_cast<Style*>(targetStyles.front());
}

Style* BaseStylePropertiesDatasource::GetCategoryStyle(Style* target) const
{
    return GetStyleOrSubstyle(target, GetCategory(), false);
}
