// The rows of a panel as bound names: what the targets share, and where it comes from. Keeps nothing but the
// rows and their names; every answer is read from the targets when it is asked for. What writes stands in
// PanelWriting.

#include "panels/PanelDatasource.h"

#include "datasource/PropertyRegistration.h"
#include "host/colour/CLR_COLORSPEC.h"
#include "host/utils/StringSplit.h"

using namespace Styles;
using OvxUtils::Any;

namespace Panels
{

namespace
{

/// The names of every panel whose answers the targets decide, apart from "SectionTitle", which the base
/// announces.
constexpr OvxStringViewT kNamesThatDependOnTargets[] = {L"RevertToParentEnable", L"BreakColorResourceEnable",
                                                        L"ApplyToParentEnable",  L"CreateStyleFromEnable",
                                                        L"IsObjectStyle",        L"IsStyle",
                                                        L"IsStyleOrDefault",     L"EditStyleEnable",
                                                        L"RevertToMenuString",   L"ApplyToMenuString",
                                                        L"EditStyleMenuString",  L"EnableStyleEditing",
                                                        L"StyleResourceList",    L"CurrentPreset",
                                                        L"AddPresetEnabled",     L"DeletePresetEnabled"};

PropertyPath ParsePath(OvxStringViewT identifier)
{
    constexpr bool kKeepEmptyPieces = true;
    constexpr bool kCaseSensitive = true;
    PropertyPath path;
    for (const OvxStringT& key : OvxUtils::String::Split(identifier, L'.', !kKeepEmptyPieces, kCaseSensitive))
        path.emplace_back(PooledString<StringPool>(key));
    return path;
}

/// The palette entry that a value refers to; empty for any other value.
OvxStringT LinkOf(const Any& value)
{
    const auto* colour = value.TryGet<CLR_COLORSPEC>();
    return colour == nullptr ? OvxStringT() : colour->GetResourceName();
}

} // namespace

void PanelDatasource::PostConstruct()
{
    BaseStylePropertiesDatasource::PostConstruct();
    presetSubscription.Start(PresetCategoryName(), [this] { OnPresetsListUpdated(); });
}

void PanelDatasource::RegisterRows(std::span<const PanelRow> newRows)
{
    for (const PanelRow& description : newRows)
    {
        const Row& row =
            rows.emplace_back(Row{OvxStringT(description.identifier), ParsePath(description.identifier)});
        BindRow(description.property, row);
    }
    for (const OvxStringViewT name : kNamesThatDependOnTargets)
        Announce(name);
}

void PanelDatasource::BindRow(OvxStringViewT property, const Row& row)
{
    const auto write = [this, &row](const Any& value) { SetValue(row, value); };
    BindAnswer(property, &PanelDatasource::GetValue, row,
               OvxUtils::RepeatingCallback<void(const Any&)>(write));
    BindAnswer(property + OvxStringViewT(L"State"), &PanelDatasource::GetState, row);
    BindAnswer(property + OvxStringViewT(L"Ambiguous"), &PanelDatasource::GetAmbiguous, row);
    BindAnswer(property + OvxStringViewT(L"Origin"), &PanelDatasource::GetOrigin, row);
    BindAnswer(property + OvxStringViewT(L"Link"), &PanelDatasource::GetLink, row);
    BindAnswer(property + OvxStringViewT(L"ParentValue"), &PanelDatasource::GetParentValue, row);
    BindAnswer(property + OvxStringViewT(L"ApplyToParentEnable"), &PanelDatasource::GetRowApplyEnable, row);
    const auto apply = [this, &row] { ApplyRow(row); };
    RegisterCommand(*this, property + OvxStringViewT(L"ApplyToParent"),
                    OvxUtils::RepeatingCallback<void()>(apply));
}

template <class T>
void PanelDatasource::BindAnswer(OvxStringViewT name, T (PanelDatasource::*answer)(const Row&) const,
                                 const Row& row, OvxUtils::RepeatingCallback<void(const T&)> setter)
{
    const auto read = [this, answer, &row] { return (this->*answer)(row); };
    RegisterProperty<T>(*this, name, OvxUtils::RepeatingCallback<T()>(read), std::move(setter));
    Announce(name);
}

void PanelDatasource::Announce(OvxStringViewT name)
{
    announcedNames += announcedNames.empty() ? OvxStringT(name) : OvxStringViewT(L",") + name;
}

void PanelDatasource::SetTargetStyle(const std::vector<Style*>& styles, bool isDefault,
                                     const PropertyPath& path,
                                     const std::set<PropertyPath>& newForceAmbiguous)
{
    BaseStylePropertiesDatasource::SetTargetStyle(styles, isDefault, path, newForceAmbiguous);
    UpdateListeners(announcedNames);
}

Any PanelDatasource::ReadValue(Style& categoryStyle, const PropertyPath& path) const
{
    return categoryStyle.GetPathProperty(path);
}

ValueOrigin PanelDatasource::ReadOrigin(Style& categoryStyle, const PropertyPath& path) const
{
    using Kind = ValueOrigin::Kind;
    if (DoesOverrideProperty(&categoryStyle, path))
        return {Kind::Local, nullptr};
    if (const Style* setter = FindInheritedSetter(categoryStyle, path))
        return {Kind::Inherited, setter};
    return {categoryStyle.GetPathProperty(path).IsEmpty() ? Kind::Unset : Kind::Default, nullptr};
}

Any PanelDatasource::ReadParentValue(Style& categoryStyle, const PropertyPath& path) const
{
    return FindInheritedValue(categoryStyle, path);
}

/// What `read` answers for all targets; none when they differ, and `T()` without targets.
template <class T, class Reader>
std::optional<T> PanelDatasource::FindShared(const Reader& read) const
{
    std::optional<T> shared;
    for (std::size_t index = 0; index < GetNumTargetStyles(); ++index)
    {
        Style* categoryStyle = GetTargetStyle(index);
        if (categoryStyle == nullptr)
            continue;
        T answer = read(*categoryStyle);
        if (!shared)
            shared = std::move(answer);
        else if (!(*shared == answer))
            return std::nullopt;
    }
    return shared ? shared : T();
}

std::optional<Any> PanelDatasource::FindSharedValue(const Row& row) const
{
    if (GetNumTargetStyles() != 1 && IsForcedAmbiguous(row.path))
        return std::nullopt;
    return FindShared<Any>([&](Style& style) { return ReadValue(style, row.path); });
}

Any PanelDatasource::GetValue(const Row& row) const
{
    return FindSharedValue(row).value_or(Any());
}

int PanelDatasource::GetState(const Row& row) const
{
    return static_cast<int>(GetActivePropertyState(row.identifier));
}

int PanelDatasource::GetAmbiguous(const Row& row) const
{
    return FindSharedValue(row) ? 0 : 1;
}

OvxStringT PanelDatasource::GetOrigin(const Row& row) const
{
    const auto origin = FindShared<ValueOrigin>([&](Style& style) { return ReadOrigin(style, row.path); });
    return DescribeOrigin(origin.value_or(ValueOrigin()));
}

OvxStringT PanelDatasource::GetLink(const Row& row) const
{
    return FindShared<OvxStringT>([&](Style& style) { return LinkOf(ReadValue(style, row.path)); })
        .value_or(OvxStringT());
}

Any PanelDatasource::GetParentValue(const Row& row) const
{
    return FindShared<Any>([&](Style& style) { return ReadParentValue(style, row.path); }).value_or(Any());
}

} // namespace Panels
