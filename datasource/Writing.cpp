// Where an edited value goes: into the open group, to the default styles, to the applicator, or to the
// modifier of the active style source. Reads the targets and ties of the data source and changes none of
// them; groups are opened and closed in GroupModification.

#include "datasource/BaseStylePropertiesDatasource.h"
#include "host/data_binding/IAppEventBroadcaster.h"
#include "host/data_binding/PendingEvent.h"
#include "host/style_model/CategoryNames.h"
#include "host/style_model/IMultipleStyleModifier.h"
#include "host/style_model/IStylesSource.h"
#include "module/NullMultipleStyleModifier.h"
#include "module/StylesCommon.h"

#include <algorithm>
#include <iterator>
#include <utility>

using namespace Styles;
using OvxUtils::Any;

namespace
{

/// Sets a flag for as long as it lives.
class RaisedFlag
{
public:
    explicit RaisedFlag(bool& raised) : flag(raised), before(std::exchange(raised, true)) {}

    RaisedFlag(const RaisedFlag&) = delete;
    RaisedFlag& operator=(const RaisedFlag&) = delete;

    ~RaisedFlag() { flag = before; }

private:
    bool& flag;
    bool before;
};

std::unique_ptr<Style> CopyOf(const Style* style)
{
    return style == nullptr ? nullptr : std::make_unique<Style>(*style);
}

PropertyPaths Prefixed(const PropertyKey& key, const PropertyPaths& paths)
{
    PropertyPaths prefixed;
    prefixed.reserve(paths.size());
    for (const PropertyPath& path : paths)
        prefixed.push_back(MakePath(key, path));
    return prefixed;
}

void Append(PropertyPaths& list, const PropertyPaths& further)
{
    list.insert(list.end(), further.begin(), further.end());
}

/// Makes room for further paths, with the spare room that growing lists have.
void MakeRoom(PropertyPaths& paths, std::size_t further)
{
    if (paths.capacity() - paths.size() < further)
        paths.reserve(std::max(paths.size() + further, 2 * paths.size()));
}

/// Appends without failing, where room was made before.
void MoveBehind(PropertyPaths& paths, PropertyPaths added) noexcept
{
    paths.insert(paths.end(), std::make_move_iterator(added.begin()), std::make_move_iterator(added.end()));
}

PropertyPaths CopyOf(const PropertyPaths* paths)
{
    return paths == nullptr ? PropertyPaths() : *paths;
}

/// Takes each path of `removed` out of `paths` once: the first that is equal.
void RemoveEach(PropertyPaths& paths, const PropertyPaths& removed)
{
    for (const PropertyPath& path : removed)
    {
        const auto found = std::find(paths.begin(), paths.end(), path);
        if (found != paths.end())
            paths.erase(found);
    }
}

IMultipleStyleModifier& FindModifier()
{
    IStylesSource* source = StylesCommon::GetActiveStyleSource();
    IMultipleStyleModifier* modifier = source == nullptr ? nullptr : source->GetMultipleStyleModifier();
    return modifier == nullptr ? NullMultipleStyleModifier::GetInstance() : *modifier;
}

bool IsWholeStyle(const Style* style)
{
    return style != nullptr && style->GetCategoryName() == StyleCategoryName;
}

/// The whole style that `style` lies in, or as far up as its owners go.
Style* ClimbToWholeStyle(Style* style)
{
    while (!IsWholeStyle(style))
    {
        Style* owner = GetSubstyleParent(*style);
        if (owner == nullptr)
            break;
        style = owner;
    }
    return style;
}

/// What a change means for the targets of one data source.
struct RoutedChange
{
    std::vector<Style*> targets;
    std::map<Style*, std::size_t> objects;
    PropertyPaths paths;
    std::unique_ptr<Style> values;
    PropertyPaths overridePaths;
};

/// Climbs each target in place. The objects are looked up by the targets as they were; where two climb to one
/// style, the first counts.
///
/// Targets that come in the order of their objects, as those of a document that was just opened mostly do,
/// are found and kept without a search.
void ClimbTargets(RoutedChange& change, const std::map<Style*, std::size_t>& objectStyles)
{
    auto expected = objectStyles.begin();
    for (Style*& target : change.targets)
    {
        if (target == nullptr)
            continue;
        const bool isExpected = expected != objectStyles.end() && expected->first == target;
        const auto object = isExpected ? expected : objectStyles.find(target);
        target = ClimbToWholeStyle(target);
        if (object == objectStyles.end())
            continue;
        change.objects.emplace_hint(change.objects.end(), target, object->second);
        expected = std::next(object);
    }
}

/// Puts the values into a style of the first target's category, as the substyle of their own category.
void WrapValues(RoutedChange& change)
{
    if (change.values == nullptr)
        return;
    auto wrapper = std::make_unique<Style>(nullptr, change.targets.front()->GetCategoryName());
    wrapper->SetSubstyle(change.values->GetCategoryName(), change.values.get());
    change.values = std::move(wrapper);
}

/// Where a change of the category `category` lands in a default style; null where it cannot.
Style* FindDestination(Style& defaultStyle, const PropertyKey& category)
{
    return category == StyleCategoryName ? &defaultStyle
                                         : defaultStyle.GetSubstyleAndCreateIfMissing(category, category);
}

void WriteToDefaultStyles(const PropertyPaths& paths, const Style& values)
{
    IStylesSource* source = StylesCommon::GetActiveStyleSource();
    if (source == nullptr)
        return;
    for (Style* defaultStyle : source->GetDefaultStyles())
    {
        Style* destination = FindDestination(*defaultStyle, values.GetCategoryName());
        if (destination != nullptr)
            destination->SetProperties(paths, &values);
    }
}

} // namespace

struct BaseStylePropertiesDatasource::PendingWrite
{
    const PropertyPaths& paths;
    std::unique_ptr<Style> values;      ///< May be null.
    const PropertyPaths* overridePaths; ///< May be null.

    void HandTo(IStyleApplicator& applicator, int id, bool toDefaultStyles) const
    {
        applicator.ModifyStyles(id, paths, values.get(), overridePaths, toDefaultStyles);
    }
};

void BaseStylePropertiesDatasource::WriteTarget(const PropertyKey& key, const Any& value,
                                                const PropertyKey* key2, const Any* value2) const
{
    if (!HasTargets())
        return;

    auto change = std::make_unique<Style>(nullptr, GetCategory());
    change->SetProperty(key, value);
    PropertyPaths paths{MakePath(key)};
    if (key2 != nullptr && value2 != nullptr)
    {
        change->SetProperty(*key2, *value2);
        paths.push_back(MakePath(*key2));
    }

    // Present though empty: an applicator can tell a written value from one that is cleared.
    const PropertyPaths noOverrides;
    ModifyStyles(paths, std::move(change), &noOverrides);
}

void BaseStylePropertiesDatasource::ClearProperties(const PropertyPaths& paths) const
{
    if (targetStyles.empty())
        return;

    ModifyStyles(paths, std::make_unique<Style>(nullptr, GetCategory()), nullptr);
}

void BaseStylePropertiesDatasource::ModifyStyles(std::unique_ptr<Style> values,
                                                 const PropertyPaths* overridePaths) const
{
    if (values == nullptr)
        return;

    const PropertyPaths paths = MakePaths(GetOverriddenProperties(*values));
    ModifyStyles(paths, std::move(values), overridePaths);
}

void BaseStylePropertiesDatasource::ModifySubstyles(const PropertyPaths& paths, const Style* substyle,
                                                    PropertyKey substyleKey,
                                                    const PropertyPaths* overridePaths) const
{
    auto change = std::make_unique<Style>(nullptr, GetCategory());
    change->SetSubstyle(substyleKey, substyle);
    const PropertyPaths prefixedOverrides = Prefixed(substyleKey, CopyOf(overridePaths));
    ModifyStyles(Prefixed(substyleKey, paths), std::move(change),
                 overridePaths == nullptr ? nullptr : &prefixedOverrides);
}

void BaseStylePropertiesDatasource::ModifyStyles(const PropertyPaths& paths, std::unique_ptr<Style> values,
                                                 const PropertyPaths* overridePaths) const
{
    PendingWrite write{paths, std::move(values), overridePaths};
    if (groupModifyStyle != nullptr)
    {
        GatherIntoGroup(write);
        return;
    }
    if (isDefaultStyles)
    {
        if (styleApplicator == nullptr)
            ModifyDefaultStyles(paths, std::move(write.values));
        else
            write.HandTo(*styleApplicator, styleApplicatorID, /*toDefaultStyles=*/true);
        return;
    }

    IMultipleStyleModifier& modifier = FindModifier();
    modifier.Begin();
    try
    {
        ModifyTargets(modifier, write);
    }
    catch (...)
    {
        modifier.End();
        throw;
    }
    modifier.End();
}

void BaseStylePropertiesDatasource::GatherIntoGroup(const PendingWrite& write) const
{
    PropertyPaths paths = write.paths;
    PropertyPaths overridePaths = CopyOf(write.overridePaths);
    PropertyPaths combined = paths;
    Append(combined, overridePaths);

    // A path without its value would be reset when the group is committed: the paths come last, when nothing
    // can fail any more.
    MakeRoom(groupModifyPaths, paths.size());
    MakeRoom(groupModifyOverridePaths, overridePaths.size());
    if (write.values != nullptr)
        groupModifyStyle->SetProperties(combined, write.values.get());
    MoveBehind(groupModifyPaths, std::move(paths));
    MoveBehind(groupModifyOverridePaths, std::move(overridePaths));
}

void BaseStylePropertiesDatasource::ModifyTargets(IMultipleStyleModifier& modifier, PendingWrite& write) const
{
    if (styleApplicator != nullptr)
    {
        write.HandTo(*styleApplicator, styleApplicatorID, /*toDefaultStyles=*/false);
        return;
    }
    // Only then do the targets hold some that came from siblings.
    if (ownStyles.size() < targetStyles.size())
        ForwardToSiblings(write);
    ModifyOwnStyles(modifier, write);
}

void BaseStylePropertiesDatasource::ForwardToSiblings(const PendingWrite& write) const
{
    // Siblings may be tied both ways: whoever forwards already, higher in this chain of calls, is left out.
    const RaisedFlag forwarding(isForwarding);
    for (std::size_t index = 0; index < siblings.size(); ++index)
    {
        const BaseStylePropertiesDatasource* sibling = siblings[index].sibling;
        if (!TakesPartAsSibling(sibling) || sibling->isForwarding)
            continue;
        // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): whoever is called owns the copy
        sibling->ModifyStyles(write.paths, CopyOf(write.values.get()), write.overridePaths);
    }
}

void BaseStylePropertiesDatasource::ModifyOwnStyles(IMultipleStyleModifier& modifier,
                                                    PendingWrite& write) const
{
    RoutedChange change{
        SubStylesToStyles(ownStyles), {}, write.paths, std::move(write.values), CopyOf(write.overridePaths)};
    if (change.targets.empty() || change.targets.front() == nullptr)
        return;

    if (std::any_of(change.targets.begin(), change.targets.end(), IsWholeStyle))
    {
        const PropertyKey category = GetCategory();
        ClimbTargets(change, objectStyles);
        WrapValues(change);
        change.paths = Prefixed(category, change.paths);
        change.overridePaths = Prefixed(category, change.overridePaths);
    }
    else
    {
        change.objects = objectStyles;
    }
    RemoveEach(change.paths, change.overridePaths);

    const bool bound = styleName.empty();
    IModifyStyleOverrides* transactionOverrides = bound ? GetTransactionOverrides() : nullptr;
    modifier.Modify(change.targets, change.objects, change.paths, std::move(change.values),
                    change.overridePaths, /*reserved=*/false, bound, transactionOverrides);
}

void BaseStylePropertiesDatasource::ModifyDefaultStyles(const PropertyPaths& paths,
                                                        std::unique_ptr<Style> values) const
{
    const PropertyKey category = values == nullptr ? PropertyKey::Empty : values->GetCategoryName();
    const OvxStringT name = L"StylePropertiesChange";
    const auto event = std::make_shared<PendingEvent<PropertyKey, OvxStringT>>(name, category, OvxStringT());
    // Raised whether or not anything was written, also when that fails half way: whoever shows default styles
    // reads them again.
    const auto raise = [&name, &event] {
        OvxUtils::Singleton<IAppEventBroadcaster>::GetInstance().NotifyListenersOnIdleImpl(name, true, event);
    };
    try
    {
        if (values != nullptr)
            WriteToDefaultStyles(paths, *values);
    }
    catch (...)
    {
        raise();
        throw;
    }
    raise();
}

void BaseStylePropertiesDatasource::WriteToDefault(OvxStringT name, const PropertyKey& key,
                                                   const Any& value) const
{
    IStylesSource* source = StylesCommon::GetActiveStyleSource();
    const StyleSheet* sheet = source == nullptr ? nullptr : source->GetDefaultStyleSheet();
    const Style* style = sheet == nullptr ? nullptr : sheet->GetStyle(name);
    Style* substyle = style == nullptr ? nullptr : style->GetSubstyle(GetCategory(), false);
    if (substyle != nullptr)
        substyle->SetProperty(key, value);
}

IModifyStyleOverrides* BaseStylePropertiesDatasource::GetTransactionOverrides() const
{
    IStylesSource* source = StylesCommon::GetActiveStyleSource();
    return source == nullptr ? nullptr : source->GetTransactionOverrides();
}
