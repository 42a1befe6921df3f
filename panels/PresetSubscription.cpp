#include "panels/PresetSubscription.h"

#include "host/data_binding/IBroadcaster.h"
#include "host/data_binding/IDataContext.h"
#include "host/data_binding/IDataSource.h"
#include "host/services/IAppInterface.h"
#include "host/services/IPanelHost.h"
#include "host/services/OvxComponent.h"

#include <utility>

namespace Panels
{

namespace
{

/// The home of the preset lists where the library looks for it; null when there is none.
IBroadcaster* FindPresets()
{
    IAppInterface* userInterface = OvxComponent::GetAppInterface();
    IPanelHost* panels = userInterface == nullptr ? nullptr : userInterface->GetPanelHost();
    IDataContext* context = panels == nullptr ? nullptr : panels->GetObjectPropertiesContext();
    return context == nullptr ? nullptr
                              : dynamic_cast<IBroadcaster*>(context->GetDataSource(L"StylePresets"));
}

} // namespace

PresetSubscription::~PresetSubscription()
{
    if (presets != nullptr && presets == FindPresets())
        presets->RemoveListener(token);
}

void PresetSubscription::Start(const OvxStringT& category, std::function<void()> whenListed)
{
    presets = category.empty() ? nullptr : FindPresets();
    if (presets == nullptr)
        return;
    listed = std::make_shared<std::function<void()>>(std::move(whenListed));
    const std::weak_ptr<std::function<void()>> held = listed;
    token = presets->AddListener(category,
                                 [held](const OvxStringT& /*name*/)
                                 {
                                     if (const auto callback = held.lock())
                                         (*callback)();
                                 });
}

} // namespace Panels
