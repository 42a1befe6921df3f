#pragma once

#include "host/Export.h"
#include "host/data_binding/IDataContext.h"
#include "host/services/IAppInterface.h"
#include "host/services/IPanelHost.h"

namespace ReferenceHost
{

/// The part of the user interface that shows panels: it knows the context in which they edit objects.
class STYLEPROPERTIES_HOST_API PanelHost : public IPanelHost
{
public:
    PanelHost() = default;
    PanelHost(const PanelHost&) = delete;
    PanelHost& operator=(const PanelHost&) = delete;
    virtual ~PanelHost();

    /// Borrowed until it is replaced; null for none.
    void SetContext(IDataContext* current) noexcept;

    IDataContext* GetObjectPropertiesContext() override;

private:
    IDataContext* context = nullptr; ///< Borrowed; may be null.
};

/// The user interface as components reach it.
class STYLEPROPERTIES_HOST_API UserInterface : public IAppInterface
{
public:
    UserInterface() = default;
    UserInterface(const UserInterface&) = delete;
    UserInterface& operator=(const UserInterface&) = delete;
    virtual ~UserInterface();

    IPanelHost* GetPanelHost() override;

    /// As GetPanelHost, for who sets the context.
    [[nodiscard]] PanelHost& GetPanels() noexcept { return panels; }

private:
    PanelHost panels;
};

} // namespace ReferenceHost
