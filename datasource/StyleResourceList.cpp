// The drop-down of named styles that the targets can take, and the list of those that do not fit into it.
// Keeps the list built last, in which picked ids are looked up, and what is chosen in the more-styles dialog.

#include "datasource/BaseStylePropertiesDatasource.h"
#include "datasource/CurrentDataContext.h"
#include "datasource/Rollback.h"
#include "host/data_binding/IDataContext.h"
#include "host/resources/Resources.h"
#include "host/style_model/CategoryNames.h"
#include "host/style_model/IStylesSource.h"
#include "host/xml/WXPath.h"
#include "module/Constants.h"
#include "module/StylesCommon.h"

#include <array>
#include <utility>

using namespace Styles;

namespace
{

constexpr OvxStringViewT kNoStyleTextKey = L"f28ee68b-9815-4dc6-8faa-529bd81fcb44";
constexpr OvxStringViewT kNoParentTextKey = L"d067aa9e-2e7b-48e4-b8f7-d1269f936601";
constexpr OvxStringViewT kMoreStylesTextKey = L"21f1822a-aa97-4a53-bd73-31d27c53fc3b";

/// How many names the main list holds, and how many of them it still shows when there are more.
constexpr std::int32_t kLongestList = 18;
constexpr std::int32_t kShownOfMore = 9;

/// The result by which a dialog is accepted.
constexpr int kAccepted = 2;

StyleSheet* FindSheet(IStylesSource* source)
{
    return source == nullptr ? nullptr : source->GetStyleSheet();
}

OvxStringT ParentNameOf(const Style* style, const StyleSheet& sheet)
{
    return style == nullptr ? OvxStringT() : sheet.GetStyleName(style->GetParent());
}

/// The names of the styles that may become the parent of `target`: what is the parent already may stay so,
/// and what inherits from the target would close a cycle.
std::vector<OvxStringT> OfferedNames(const StyleSheet& sheet, const PropertyKey& category, Style* target)
{
    const Style* const parent = target->GetParent();
    const std::array<Style*, 1> one{target};
    std::vector<OvxStringT> names = sheet.GetStyleNames(category);
    std::erase_if(names,
                  [&](const OvxStringT& name)
                  {
                      const Style* const style = sheet.GetStyle(name);
                      const bool isOffered = style != nullptr && style != target &&
                                             (style == parent || !style->HasParentalDependency(one));
                      return !isOffered;
                  });
    return names;
}

/// Ampersands mark keys in menus.
OvxStringT Escaped(OvxStringT name)
{
    name.Replace(L"&", L"&&");
    return name;
}

/// Tells whether `text` is the escaped form of `name`. A long list asks this of each of its names and makes
/// no texts for it.
bool IsEscapedForm(const OvxStringT& text, const OvxStringT& name)
{
    const auto hasAmpersand = [&name] { return name.Wide().find(L'&') != std::wstring::npos; };
    if (text.size() > name.size())
        return hasAmpersand() && Escaped(name).Compare(text) == 0;
    return name == text && !hasAmpersand();
}

/// Writes entries to a list. The addresses of their attributes are made once for all of them.
class ListWriter
{
public:
    explicit ListWriter(WXmlNode& listNode) : list(listNode) {}

    // Here the name stands before the text, in all other entries behind it. Deliberate: this is the format.
    void AddNoStyle(OvxStringViewT textKey, bool isChecked)
    {
        Begin();
        entry.Attribute(name).SetString({}, {});
        entry.Attribute(text).SetString(Framework::Resources::GetString(textKey), {});
        entry.Attribute(check).SetBool(isChecked);
        Enable();
        entry.Attribute(id).SetInt(0);
    }

    void AddStyle(const OvxStringT& shown, bool isChecked, std::int32_t number)
    {
        Begin(shown);
        entry.Attribute(check).SetBool(isChecked);
        Enable();
        entry.Attribute(id).SetInt(number);
    }

    void AddMoreStyles(const OvxStringT& shown, std::int32_t number)
    {
        Begin(shown);
        entry.Attribute(id).SetInt(number);
    }

    void AddOverflow(const OvxStringT& shown, std::int32_t number)
    {
        Begin(shown);
        Enable();
        entry.Attribute(id).SetInt(number);
    }

private:
    void Begin()
    {
        entry = list.CreateChild(itemData);
        entry.Attribute(type).SetString(statusText, {});
    }

    void Begin(const OvxStringT& shown)
    {
        Begin();
        entry.Attribute(text).SetString(shown, {});
        entry.Attribute(name).SetString(shown, {});
    }

    /// What every entry that applies a style has.
    void Enable()
    {
        entry.Attribute(enable).SetBool(true);
        entry.Attribute(guid).SetString({}, {});
    }

    WXmlNode& list;
    WXmlNode entry; ///< The one being written.
    const OvxStringT itemData = L"itemData";
    const OvxStringT type = L"@type";
    const OvxStringT statusText = L"statusText";
    const OvxStringT text = L"@text";
    const OvxStringT name = L"@styleName";
    const OvxStringT check = L"@check";
    const OvxStringT enable = L"@enable";
    const OvxStringT guid = L"@guid";
    const OvxStringT id = L"@placeholderCommandID";
};

/// Calls `act` with the dialog service and the key of the more-styles dialog of `category`; does nothing for
/// a category without one.
template <class Action>
void ForMoreStylesDialog(IDataContext* dataContext, const PropertyKey& category, const Action& act)
{
    IDialogService* dialogs = dataContext == nullptr ? nullptr : dataContext->GetDialogService();
    if (dialogs == nullptr)
        return;
    const std::array<std::pair<PropertyKey, const OvxStringT*>, 4> dialogsByCategory{
        {{OutlineStyleCategoryName, &kOutlineDialogKey},
         {FillStyleCategoryName, &kFillDialogKey},
         {GetParagraphStyleCategoryName(), &kParagraphDialogKey},
         {GetCharacterStyleCategoryName(), &kCharacterDialogKey}}};
    for (const auto& [dialogCategory, key] : dialogsByCategory)
    {
        if (category == dialogCategory)
            act(*dialogs, *key);
    }
}

} // namespace

WXmlNode BaseStylePropertiesDatasource::GetStyleResourceList()
{
    // A list that came half way is not the one that picks are looked up in.
    Rollback before(resourceListNode, newStyleListBuilt, visibleLimit, listedStyleCount);
    WXmlNode list = listDocument.CreateNode(L"placeholderData");
    resourceListNode = list;
    newStyleListBuilt = false;
    visibleLimit = kLongestList;

    const StyleSheet* sheet = FindSheet(StylesCommon::GetActiveStyleSource());
    Style* target = sheet == nullptr ? nullptr : GetTargetStyle(0);
    if (target != nullptr)
    {
        const OvxStringT current = ParentNameOf(target, *sheet);
        const std::vector<OvxStringT> names = OfferedNames(*sheet, GetCategory(), target);
        ListWriter(list).AddNoStyle(styleName.empty() ? kNoStyleTextKey : kNoParentTextKey, current.empty());
        AddStyleEntries(list, names, current);
    }
    before.Keep();
    return list;
}

void BaseStylePropertiesDatasource::AddStyleEntries(WXmlNode& list, const std::vector<OvxStringT>& names,
                                                    const OvxStringT& current)
{
    listedStyleCount = static_cast<std::int32_t>(names.size());
    const bool overflows = listedStyleCount > visibleLimit;
    if (overflows)
        visibleLimit = kShownOfMore;

    // Names are shown, kept and compared in their escaped form. Deliberate: a name with an ampersand is never
    // the current one, and picking it finds no style.
    ListWriter writer(list);
    std::int32_t id = 1;
    for (const OvxStringT& name : names)
    {
        const bool isCurrent = IsEscapedForm(current, name);
        if (id > visibleLimit && !isCurrent)
            continue;
        writer.AddStyle(Escaped(name), isCurrent, id);
        ++id;
    }
    if (overflows)
        writer.AddMoreStyles(Framework::Resources::GetString(kMoreStylesTextKey), id);
}

WXmlNode BaseStylePropertiesDatasource::GetNewStyleList()
{
    if (newStyleListBuilt)
        return resourceListNode;

    Rollback before(resourceListNode, newStyleListBuilt, currentListItem);
    WXmlNode list = listDocument.CreateNode(L"placeholderData");
    resourceListNode = list;
    newStyleListBuilt = true;
    currentListItem = WXmlNode();
    if (const StyleSheet* sheet = FindSheet(StylesCommon::GetActiveStyleSource()))
        AddOverflowEntries(list, *sheet);
    before.Keep();
    return list;
}

// The numbers go on where those of the main list end, so that ids of both are one range.
void BaseStylePropertiesDatasource::AddOverflowEntries(WXmlNode& list, const StyleSheet& sheet)
{
    ListWriter writer(list);
    OvxStringT current;
    std::int32_t counter = 0;
    for (const OvxStringT& name : sheet.GetStyleNames(GetCategory()))
    {
        if (counter == visibleLimit)
        {
            const Style* target = GetTargetStyle(0);
            if (target == nullptr)
                return;
            current = ParentNameOf(target, sheet);
        }
        if (name == current)
            continue;
        if (counter >= visibleLimit)
            writer.AddOverflow(name, counter);
        ++counter;
    }
}

unsigned BaseStylePropertiesDatasource::GetApplyStyleResource() const
{
    return 0;
}

void BaseStylePropertiesDatasource::SetApplyStyleResource(const unsigned& id)
{
    const StyleSheet* sheet = FindSheet(StylesCommon::GetActiveStyleSource());
    if (sheet == nullptr)
        return;
    const OvxStringT current = ParentNameOf(GetTargetStyle(0), *sheet);
    const WXmlNode item = resourceListNode.GetNode(
        WXPath(OvxStringT::Format(L"itemData[@placeholderCommandID='%d']", static_cast<int>(id))));
    if (!item.IsValid())
        return;
    const OvxStringT name = item.Attribute(L"@styleName").GetString();
    if (name == current)
        return;

    if (id <= static_cast<unsigned>(visibleLimit))
    {
        ApplyStyleResource(name);
        return;
    }
    IDataContext* dataContext = GetDataContext();
    ForMoreStylesDialog(dataContext, GetCategory(),
                        [dataContext](IDialogService& dialogs, const OvxStringT& key)
                        { dialogs.ShowDialog(key, dataContext); });
}

void BaseStylePropertiesDatasource::ApplyStyleResource(const OvxStringT& name)
{
    IStylesSource* source = StylesCommon::GetActiveStyleSource();
    const StyleSheet* sheet = FindSheet(source);
    if (sheet == nullptr)
        return;
    Style* target = GetTargetStyle(0);
    if (name == ParentNameOf(target, *sheet))
        return;
    if (name.empty())
    {
        SetNoParent(source, target);
        return;
    }

    Style* style = sheet->GetStyle(name);
    if (style == nullptr)
        return;
    if (styleName.empty())
        source->ApplyStyle(style, /*reserved=*/false);
    else if (target != nullptr)
        source->SetParent(target, style, /*reserved=*/true);
}

WXmlNode BaseStylePropertiesDatasource::GetCurrentListStyleItem() const
{
    return currentListItem;
}

void BaseStylePropertiesDatasource::SetCurrentListStyleItem(const WXmlNode& item)
{
    currentListItem = item;
    UpdateListeners(L"BaseStylePropertiesDatasourceOkEnabled");
}

void BaseStylePropertiesDatasource::OnBaseStylePropertiesDatasourceOk()
{
    if (!currentListItem.IsValid())
        return;
    ApplyStyleResource(currentListItem.Attribute(L"@styleName").GetString());
    ForMoreStylesDialog(GetDataContext(), GetCategory(),
                        [](IDialogService& dialogs, const OvxStringT& key)
                        { dialogs.CloseDialog(key, kAccepted, 0); });
}

int BaseStylePropertiesDatasource::GetBaseStylePropertiesDatasourceOkEnabled() const
{
    return currentListItem.IsValid() ? 1 : 0;
}

WCmnUI_Guid BaseStylePropertiesDatasource::GetPropertyPanelStateIdentifier() const
{
    const std::optional<IDataContext*> current = FindCurrentDataContext();
    const bool isObjectPropertiesPanel = current.has_value() && *current == GetDataContext();
    return WCmnUI_Guid(isObjectPropertiesPanel ? L"State.ObjectProperties" : L"State.ObjectStyles");
}
