#include "apps/workbench/SettledAnswers.h"

#include <algorithm>
#include <utility>

namespace Workbench
{

std::optional<OvxStringT> SettledAnswers::NamePreset(const OvxStringT& proposed)
{
    if (!presetName)
        return otherwise == nullptr ? std::nullopt : otherwise->NamePreset(proposed);
    if (std::exchange(isPresetNameGiven, true))
        return std::nullopt;
    return presetName;
}

std::optional<std::size_t> SettledAnswers::ChooseStyle(const StyleList& styles)
{
    if (!styleName && !styleId)
        return otherwise == nullptr ? std::nullopt : otherwise->ChooseStyle(styles);
    const auto isSettled = [this](const StyleListEntry& entry)
    { return styleName ? entry.styleName == *styleName : entry.id == *styleId; };
    const auto found = std::find_if(styles.entries.begin(), styles.entries.end(), isSettled);
    if (found == styles.entries.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - styles.entries.begin());
}

bool SettledAnswers::Confirm(const OvxStringT& question)
{
    if (confirmation)
        return *confirmation;
    return otherwise != nullptr && otherwise->Confirm(question);
}

} // namespace Workbench
