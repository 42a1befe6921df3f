// What the rows of a panel write: the targets' own values, and one value moved into what they inherit from.
// Keeps nothing; where a value goes is decided by the base, see Writing in the library.

#include "host/colour/CLR_COLORSPEC.h"
#include "host/style_model/IStylesSource.h"
#include "module/StylesCommon.h"
#include "panels/PanelDatasource.h"
#include "panels/SourceGroup.h"

#include <algorithm>
#include <memory>

using namespace Styles;
using OvxUtils::Any;

namespace Panels
{

namespace
{

/// Tells whether a value is a colour that refers to no palette entry.
bool IsPlainColour(const Any& value)
{
    const auto* colour = value.TryGet<CLR_COLORSPEC>();
    return colour != nullptr && colour->GetModel() != CLR_COLORSPEC::kResource;
}

/// Tells whether `shown` is a palette colour that looks like the plain colour `written`.
bool IsSameLookWithALink(const Any& shown, const Any& written)
{
    const auto* colour = shown.TryGet<CLR_COLORSPEC>();
    return colour != nullptr && colour->GetModel() == CLR_COLORSPEC::kResource &&
           colour->ToRgb() == written.Get<CLR_COLORSPEC>().ToRgb();
}

std::unique_ptr<Style> MakeChange(const PropertyKey& category, const PropertyPath& path, const Any& value)
{
    auto change = std::make_unique<Style>(nullptr, category);
    change->SetPathProperty(path, Any(value));
    return change;
}

} // namespace

void PanelDatasource::SetValue(const Row& row, const Any& value)
{
    if (IsPlainColour(value))
    {
        const std::optional<Any> shown = FindSharedValue(row);
        if (shown && IsSameLookWithALink(*shown, value))
        {
            WriteValue(row.path, *shown);
            return;
        }
    }
    WriteValue(row.path, value);
}

void PanelDatasource::WriteValue(const PropertyPath& path, const Any& value)
{
    if (value.IsEmpty())
    {
        ClearProperties({path});
        return;
    }
    if (path.size() == 1)
    {
        WriteTarget(path.front(), value, nullptr, nullptr);
        return;
    }
    if (!HasTargets())
        return;
    const PropertyPaths noOverrides;
    ModifyStyles({path}, MakeChange(GetCategory(), path, value), &noOverrides);
}

Style* PanelDatasource::FindApplyDestination(const Style& categoryStyle) const
{
    return FindInParent(categoryStyle);
}

/// The styles that a row's value moves to, each once, in the order of the targets; none at all when one of
/// the targets has none.
std::vector<Style*> PanelDatasource::FindApplyDestinations() const
{
    std::vector<Style*> destinations;
    std::set<Style*> found;
    for (std::size_t index = 0; index < GetNumTargetStyles(); ++index)
    {
        const Style* categoryStyle = GetTargetStyle(index);
        Style* destination = categoryStyle == nullptr ? nullptr : FindApplyDestination(*categoryStyle);
        if (destination == nullptr)
            return {};
        if (found.insert(destination).second)
            destinations.push_back(destination);
    }
    return destinations;
}

int PanelDatasource::GetRowApplyEnable(const Row& row) const
{
    return GetActivePropertyState(row.identifier) == ActivePropertyState::Overridden &&
                   FindSharedValue(row) && !FindApplyDestinations().empty()
               ? 1
               : 0;
}

void PanelDatasource::ApplyRow(const Row& row)
{
    IStylesSource* source = StylesCommon::GetActiveStyleSource();
    if (source == nullptr || GetRowApplyEnable(row) == 0)
        return;

    const Any value = GetValue(row);
    const std::vector<Style*> destinations = FindApplyDestinations();
    SourceGroup group(*source);
    for (Style* destination : destinations)
    {
        // The targets are cleared once, when the last destination holds the value.
        const bool isLast = destination == destinations.back();
        const auto clear = [this, isLast](const PropertyPaths& paths)
        {
            if (isLast)
                ClearProperties(paths);
        };
        source->ApplyToParent(clear, destination, {row.path}, MakeChange(GetCategory(), row.path, value));
    }
    group.Commit();
}

} // namespace Panels
