#pragma once

#include "host/data_binding/ListenerToken.h"
#include "host/utils/OvxStringT.h"

#include <functional>
#include <memory>

class IBroadcaster;

namespace Panels
{

/// What a panel hears when the presets of its category come and go. Ends with the panel.
class PresetSubscription
{
public:
    PresetSubscription() = default;
    PresetSubscription(const PresetSubscription&) = delete;
    PresetSubscription& operator=(const PresetSubscription&) = delete;
    ~PresetSubscription();

    /// Listens to "StylePresets" in the host's current context, under the name of the preset category. Does
    /// nothing for an empty category, and where no such data source lives. Once.
    void Start(const OvxStringT& category, std::function<void()> whenListed);

private:
    /// Held by this alone: the listener finds it gone when the panel went where nothing could be looked up.
    std::shared_ptr<std::function<void()>> listed;
    IBroadcaster* presets = nullptr; ///< May be gone: compared with what lives there now, and not followed.
    ListenerToken token;
};

} // namespace Panels
