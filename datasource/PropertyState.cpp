// Whether the targets agree on a value, and where their values come from: own, inherited, ambiguous. Reads
// the targets, the forced paths and the active identifier, and keeps the has-parent value.

#include "datasource/ActivePaths.h"
#include "datasource/BaseStylePropertiesDatasource.h"
#include "datasource/Rollback.h"
#include "host/data_binding/ID_CString.h"
#include "host/resources/Resources.h"
#include "host/style_model/CategoryNames.h"

#include <algorithm>
#include <array>

using namespace Styles;
using OvxUtils::Any;

namespace
{

/// What a row shows for a state.
struct StatePresentation
{
    OvxStringViewT image;
    OvxStringViewT tooltipKey;
};

/// By the number of the state. The two ambiguous ones look the same.
constexpr std::array<StatePresentation, 5> kPresentations{{
    {L"NoneImage", L"881fe267-e7e0-4e0e-879a-1771032cbd0e"},
    {L"OverriddenImage", L"e00592b9-072e-4ce1-9cb1-92085fbc0591"},
    {L"InheritedImage", L"d342e6ca-41ea-42a4-8f92-6e5579ad3715"},
    {L"AmbiguousImage", L"7df734c4-2fb0-41fb-b368-5fadc8758275"},
    {L"AmbiguousImage", L"7df734c4-2fb0-41fb-b368-5fadc8758275"},
}};

/// Null for a value outside the enumerators, which an override may give.
const StatePresentation* FindPresentation(ActivePropertyState state)
{
    const auto number = static_cast<std::size_t>(state);
    return number < kPresentations.size() ? &kPresentations[number] : nullptr;
}

/// The question inside a request. Answers go into the caller's own value, which the request only lends as
/// constant.
ID_CString& Question(const Any& request)
{
    return const_cast<ID_CString&>(request.Get<ID_CString>());
}

bool BeginsWith(const PropertyPath& path, const PropertyPath& prefix)
{
    return prefix.size() <= path.size() && std::equal(prefix.begin(), prefix.end(), path.begin());
}

/// Tests `path` and then each shorter prefix down to the empty path.
bool ContainsPathOrPrefix(const std::set<PropertyPath>& paths, PropertyPath path)
{
    if (paths.empty())
        return false;
    while (!paths.contains(path))
    {
        if (path.empty())
            return false;
        path.pop_back();
    }
    return true;
}

/// A style that has no parent and no owner with one.
bool HasNothingToInheritFrom(const Style& style)
{
    const Style* owner = style.GetOwner();
    return (owner == nullptr || owner->GetParent() == nullptr) && style.GetParent() == nullptr;
}

/// The style that holds the value at `path` below `style`; null when a substyle on the way is missing.
const Style* FindHolder(const Style* style, const PropertyPath& path)
{
    for (std::size_t index = 0; style != nullptr && index + 1 < path.size(); ++index)
        style = style->GetSubstyle(path[index], true);
    return style;
}

/// Empty substyles do not make a style override anything; they are left out of a copy.
bool DoesWholeStyleOverride(const Style* categoryStyle)
{
    if (categoryStyle == nullptr || categoryStyle->IsEmpty())
        return false;

    Style copy(*categoryStyle);
    ClearEmptySubstyles(copy);
    return !copy.IsEmpty();
}

} // namespace

void BaseStylePropertiesDatasource::ImportForceAmbiguous(const PropertyPath& path,
                                                         const std::set<PropertyPath>& paths)
{
    if (ContainsPathOrPrefix(paths, path))
    {
        forceAmbiguous.insert(PropertyPath());
        return;
    }

    std::set<PropertyPath> imported;
    for (auto entry = paths.lower_bound(path); entry != paths.end() && BeginsWith(*entry, path); ++entry)
        imported.emplace(entry->begin() + static_cast<std::ptrdiff_t>(path.size()), entry->end());
    forceAmbiguous.merge(imported);
}

void BaseStylePropertiesDatasource::ImportForceAmbiguous(const PropertyKey& key,
                                                         const std::set<PropertyPath>& paths)
{
    ImportForceAmbiguous(MakePath(key), paths);
}

bool BaseStylePropertiesDatasource::IsForcedAmbiguous(const PropertyPath& path) const
{
    return ContainsPathOrPrefix(forceAmbiguous, path);
}

bool BaseStylePropertiesDatasource::IsAmbiguous(const PropertyPath& path) const
{
    if (targetStyles.size() == 1)
        return false;
    if (IsForcedAmbiguous(path))
        return true;
    if (path.empty())
        return false;

    // A copy: asking for the next target may create substyles and move what values lie in.
    Any reference;
    for (std::size_t index = 0; index < GetNumTargetStyles(); ++index)
    {
        const Style* style = FindHolder(GetTargetStyle(index), path);
        if (style == nullptr)
            continue;
        const Any& value = style->GetProperty(path.back());
        if (reference.IsEmpty())
            reference = value;
        else if (!(reference == value))
            return true;
    }
    return false;
}

bool BaseStylePropertiesDatasource::IsAmbiguous(const PropertyKey& key) const
{
    return IsAmbiguous(MakePath(key));
}

bool BaseStylePropertiesDatasource::IsAmbiguous() const
{
    return IsAmbiguous(PropertyPath());
}

void BaseStylePropertiesDatasource::SetActiveIdentifier(const OvxStringT& identifier)
{
    activeIdentifier = identifier;
    UpdateListeners(L"RevertToParentEnable");
    UpdateListeners(L"BreakColorResourceEnable");
}

bool BaseStylePropertiesDatasource::HasParent() const
{
    if (hasParentPending)
    {
        Rollback before(hasParentPending);
        hasParentPending = false;
        hasParent = hasParentDelegate();
        before.Keep();
    }
    return hasParent;
}

bool BaseStylePropertiesDatasource::Private_HasParent() const
{
    const Style* style = GetCategoryStyle(GetFirstTarget());
    if (style == nullptr)
        return false;
    if (style->GetParent() != nullptr)
        return true;

    const Style* owner = style->GetOwner();
    const Style* ownersParent = owner == nullptr ? nullptr : owner->GetParent();
    const PropertyKey category = GetCategory();
    return ownersParent != nullptr && category != StyleCategoryName &&
           ownersParent->GetSubstyle(category, false) != nullptr;
}

bool BaseStylePropertiesDatasource::DoesOverrideProperty(Style* style, const PropertyPath& path) const
{
    return style != nullptr && style->DoesOverridePathProperty(path);
}

bool BaseStylePropertiesDatasource::DoesOverrideProperties(Style* style, const OvxStringT& identifier) const
{
    return DoesOverrideAny(style, ParseActivePaths(identifier, /*dropWildcard=*/false));
}

bool BaseStylePropertiesDatasource::DoesOverrideAny(Style* style, const PropertyPaths& paths) const
{
    return std::ranges::any_of(paths,
                               [&](const PropertyPath& path) { return DoesOverrideProperty(style, path); });
}

ActivePropertyState BaseStylePropertiesDatasource::GetActivePropertyState(const OvxStringT& identifier) const
{
    if (!HasParent())
        return ActivePropertyState::None;

    // For the whole style, further targets are asked the cheaper question of properties of their own.
    const bool isWholeStyle = identifier == L"style";
    const PropertyPaths paths =
        isWholeStyle ? PropertyPaths() : ParseActivePaths(identifier, /*dropWildcard=*/false);
    Style* first = GetCategoryStyle(GetFirstTarget());
    const bool overrides = isWholeStyle ? DoesWholeStyleOverride(first) : DoesOverrideAny(first, paths);

    for (std::size_t index = 1; index < targetStyles.size(); ++index)
    {
        // GetCategoryStyle() without the call, which each target of each row would pay for.
        Style* further = GetStyleOrSubstyle(targetStyles[index], GetCategory(), false);
        if (further == nullptr || HasNothingToInheritFrom(*further))
            return ActivePropertyState::AmbiguousParent;

        const bool furtherOverrides =
            isWholeStyle ? further->GetOwnPropertyCount() != 0 : DoesOverrideAny(further, paths);
        if (furtherOverrides != overrides)
            return ActivePropertyState::Ambiguous;
    }
    return overrides ? ActivePropertyState::Overridden : ActivePropertyState::Inherited;
}

Any BaseStylePropertiesDatasource::GetPropertyIcon() const
{
    return {};
}

void BaseStylePropertiesDatasource::SetPropertyIcon(const Any& request)
{
    if (request.IsEmpty())
        return;

    ID_CString& question = Question(request);
    if (const auto* shown = FindPresentation(GetActivePropertyState(question.identifier)))
        question.result = shown->image;
}

void BaseStylePropertiesDatasource::SetPropertyTooltip(const Any& request)
{
    if (request.IsEmpty())
        return;

    ID_CString& question = Question(request);
    if (const auto* shown = FindPresentation(GetActivePropertyState(question.identifier)))
        question.result = Framework::Resources::GetString(shown->tooltipKey);
}
