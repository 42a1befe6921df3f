// The one way from here to the context in which the host's panels live.

#include "datasource/CurrentDataContext.h"

#include "host/services/IAppInterface.h"
#include "host/services/IPanelHost.h"
#include "host/services/OvxComponent.h"

std::optional<IDataContext*> FindCurrentDataContext()
{
    IAppInterface* appInterface = OvxComponent::GetAppInterface();
    IPanelHost* panelHost = appInterface == nullptr ? nullptr : appInterface->GetPanelHost();
    if (panelHost == nullptr)
        return std::nullopt;
    return panelHost->GetObjectPropertiesContext();
}
