// Revert, apply to parent, break a link, create and edit styles, with their enables and menu texts. Reads the
// targets and the active identifier; what is written goes through Writing or the style source, and nothing is
// notified here.

#include "datasource/ActivePaths.h"
#include "datasource/BaseStylePropertiesDatasource.h"
#include "host/colour/CLR_COLORSPEC.h"
#include "host/data_binding/IDataContext.h"
#include "host/data_binding/IDataSource.h"
#include "host/resources/Resources.h"
#include "host/style_model/CategoryNames.h"
#include "host/style_model/IStylesCollectionEditor.h"
#include "host/style_model/IStylesSource.h"
#include "host/style_model/IStylesSourceApp.h"
#include "module/StylesCommon.h"

#include <set>
#include <utility>

using namespace Styles;
using OvxUtils::Any;

namespace
{

constexpr OvxStringViewT kRevertTextKey = L"f6dd6f91-646d-4758-ba17-db358538fa3e";
constexpr OvxStringViewT kApplyTextKey = L"6d36d862-aac1-4e48-a9eb-2ac57f1862b1";
constexpr OvxStringViewT kEditStyleTextKey = L"a17f1a53-850c-459c-81df-297c75d6e567";

/// What menus call the parent where it has no name.
constexpr OvxStringViewT kUnnamedParentTextKey = L"1afd0b33-8a69-4ebe-bfcd-a0c00531518a";

/// The model of a colour that refers to a colour resource.
constexpr int kResourceModel = 28;

/// A command's text with the name in it; an ampersand of the name is shown and marks no key.
OvxStringT MenuText(OvxStringViewT key, OvxStringT name)
{
    name.Replace(L"&", L"&&");
    return OvxStringT::FormatMessageInserts(Framework::Resources::GetString(key), {name});
}

bool NamesWholeStyle(const OvxStringT& identifier)
{
    return identifier == StyleCategoryName.GetString();
}

} // namespace

int BaseStylePropertiesDatasource::GetApplyToParentEnable() const
{
    const ActivePropertyState state = GetActivePropertyState(activeIdentifier);
    return state == ActivePropertyState::Overridden || state == ActivePropertyState::Ambiguous ? 1 : 0;
}

void BaseStylePropertiesDatasource::OnRevertToParent()
{
    if (GetApplyToParentEnable() == 0 || targetStyles.empty())
        return;
    if (!NamesWholeStyle(activeIdentifier))
    {
        ClearProperties(ParseActivePaths(activeIdentifier, /*dropWildcard=*/true));
        return;
    }

    Style* style = GetCategoryStyle(GetFirstTarget());
    if (style != nullptr)
        ClearProperties(GetStyleCategoryProperties(style));
}

// Enabled for single properties too, for which it does nothing: derived classes bring a command of their own
// for these. Deliberate.
void BaseStylePropertiesDatasource::OnApplyToParent()
{
    if (GetApplyToParentEnable() == 0 || targetStyles.empty() || !NamesWholeStyle(activeIdentifier))
        return;
    const Style* style = GetCategoryStyle(GetFirstTarget());
    if (style == nullptr)
        return;

    auto values = std::make_unique<Style>(*style);
    values->SetParent(nullptr);
    const PropertyPaths paths = GetOverriddenPropertyPaths(*values);
    IStylesSource* source = StylesCommon::GetActiveStyleSource();
    Style* destination = source == nullptr ? nullptr : FindInParent(*style);
    if (destination == nullptr)
        return;
    source->ApplyToParent([this](const PropertyPaths& applied) { ClearProperties(applied); }, destination,
                          paths, std::move(values));
}

Style* BaseStylePropertiesDatasource::FindInParent(const Style& categoryStyle)
{
    if (Style* parent = categoryStyle.GetParent())
        return parent;
    const Style* owner = GetSubstyleParent(categoryStyle);
    const Style* ownersParent = owner == nullptr ? nullptr : owner->GetParent();
    return ownersParent == nullptr ? nullptr
                                   : ownersParent->GetSubstyle(categoryStyle.GetCategoryName(), false);
}

int BaseStylePropertiesDatasource::GetBreakColorResourceEnable() const
{
    if (targetStyles.size() != 1)
        return 0;

    for (const PropertyPath& path : ParseActivePaths(activeIdentifier, /*dropWildcard=*/true))
    {
        const Style* style = GetCategoryStyle(GetFirstTarget());
        if (style != nullptr &&
            style->GetPathProperty(path).Get<CLR_COLORSPEC>().GetModel() == kResourceModel)
            return 1;
    }
    return 0;
}

// Every colour at the active paths is broken, whatever its model, and every path is sent, also where there is
// no style to read a colour from. Deliberate.
void BaseStylePropertiesDatasource::OnBreakColorResource()
{
    if (targetStyles.size() != 1)
        return;

    auto change = std::make_unique<Style>(nullptr, GetCategory());
    const PropertyPaths paths = ParseActivePaths(activeIdentifier, /*dropWildcard=*/true);
    for (const PropertyPath& path : paths)
    {
        const Style* style = GetCategoryStyle(GetFirstTarget());
        if (style == nullptr)
            continue;
        CLR_COLORSPEC color = style->GetPathProperty(path).Get<CLR_COLORSPEC>();
        color.BreakReference();
        change->SetPathProperty(path, Any(color));
    }
    ModifyStyles(paths, std::move(change), nullptr);
}

int BaseStylePropertiesDatasource::GetCreateStyleFromEnable() const
{
    const Style* first = GetFirstTarget();
    if (first == nullptr)
        return 0;
    return GetSubstyleParent(*first) == nullptr || first->GetParent() != nullptr ? 1 : 0;
}

void BaseStylePropertiesDatasource::OnCreateStyleFrom()
{
    IStylesSource* source = StylesCommon::GetActiveStyleSource();
    const StyleSheet* sheet = source == nullptr ? nullptr : source->GetStyleSheet();
    if (sheet == nullptr)
        return;

    const OvxStringT name = sheet->GetUnusedStyleName(GetCategory().GetString());
    source->CreateStyle(GetCategory(), name);
}

int BaseStylePropertiesDatasource::GetEditStyleEnable() const
{
    return GetStyleNameBasedOnHeirarchy(GetTargetStyle(0)).empty() ? 0 : 1;
}

void BaseStylePropertiesDatasource::OnEditStyle()
{
    IDataContext* dataContext = GetDataContext();
    IDataSource* neighbour =
        dataContext == nullptr ? nullptr : dataContext->GetDataSource(L"StylesDatasource");
    auto* editor = dynamic_cast<IStylesCollectionEditor*>(neighbour);
    if (editor != nullptr)
        editor->EditStyle(GetStyleNameBasedOnHeirarchy(GetTargetStyle(0)), /*select=*/true, /*show=*/true);
}

OvxStringT BaseStylePropertiesDatasource::GetParentStyleName() const
{
    OvxStringT name;
    if (StylesCommon::GetActiveStyleSource() != nullptr)
        name = GetStyleNameBasedOnHeirarchy(GetTargetStyle(0));
    return name.empty() ? Framework::Resources::GetString(kUnnamedParentTextKey)
                        : StylesCommon::StylesApp().GetDisplayStyleName(name);
}

OvxStringT BaseStylePropertiesDatasource::GetRevertToMenuString() const
{
    return MenuText(kRevertTextKey, GetParentStyleName());
}

OvxStringT BaseStylePropertiesDatasource::GetApplyToMenuString() const
{
    return MenuText(kApplyTextKey, GetParentStyleName());
}

OvxStringT BaseStylePropertiesDatasource::GetEditStyleMenuString() const
{
    return MenuText(kEditStyleTextKey, GetParentStyleName());
}

void BaseStylePropertiesDatasource::SetNoParent(IStylesSource* source, Style* style) const
{
    if (style == nullptr)
        return;

    std::set<PropertyKey> keys;
    std::unique_ptr<Style> flattened(style->CreateFlattenedStyle(keys));
    if (source != nullptr)
        source->ReplaceProperties(style, MakePaths(keys), std::move(flattened), /*dropParent=*/true,
                                  /*reserved=*/false);
}
