#pragma once

#include "host/Export.h"
#include "host/data_binding/IDataContext.h"
#include "host/services/IAppInterface.h"
#include "host/services/IOrvexCmn_App.h"
#include "host/style_model/IStylesSource.h"
#include "reference_host/services/ActiveStyleSource.h"
#include "reference_host/services/DialogService.h"
#include "reference_host/services/IDocumentStyles.h"
#include "reference_host/services/StylesApplication.h"
#include "reference_host/services/UserInterface.h"

namespace ReferenceHost
{

/// One running application: what the library is initialised with, and what components reach through
/// OvxComponent.
///
/// The application made last is the one that OvxComponent answers with, until it is gone; a process has one
/// at a time. All on the user interface's thread.
class STYLEPROPERTIES_HOST_API Application : public IOrvexCmn_App
{
public:
    Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;
    virtual ~Application();

    /// The application that lives; null when there is none.
    [[nodiscard]] static Application* GetCurrent() noexcept;

    /// Makes a document the active one: its styles, and its answers about style names. Both are borrowed
    /// until CloseDocument or the next call; either may be null.
    void OpenDocument(IStylesSource* source, const IDocumentStyles* document) noexcept;

    /// Leaves the application without a document.
    void CloseDocument() noexcept;

    /// Sets the context in which panels edit objects; borrowed until it is replaced, null for none.
    void SetObjectPropertiesContext(IDataContext* context) noexcept;

    [[nodiscard]] IAppInterface& GetUserInterface() noexcept { return userInterface; }

    /// What contexts of this application show dialogs with, and what its questions go through.
    [[nodiscard]] DialogService& GetDialogs() noexcept { return dialogs; }

    /// Where the presets of this application are kept.
    [[nodiscard]] PresetManager& GetPresets() noexcept { return styles.GetPresets(); }

    /// Answers the identifier of IStylesSourceApp.
    void QueryInterface(const InterfaceId& id, void** out) override;

    /// Null while no style source is active.
    IStyleSourceProvider* GetActiveStyleSourceProvider() override;

private:
    StylesApplication styles;
    ActiveStyleSource activeSource;
    UserInterface userInterface;
    DialogService dialogs;
};

} // namespace ReferenceHost
