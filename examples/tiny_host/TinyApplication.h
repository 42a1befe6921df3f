#pragma once

#include "host/Export.h"
#include "host/data_binding/IDialogService.h"
#include "host/services/IAppInterface.h"
#include "host/services/IOrvexCmn_App.h"
#include "host/services/IPanelHost.h"
#include "host/style_model/IStyleSourceProvider.h"
#include "host/style_model/IStylesSourceApp.h"
#include "tiny_host/TinyContext.h"
#include "tiny_host/TinyDocument.h"
#include "tiny_host/TinyPresets.h"

#include <functional>

namespace TinyHost
{

/// The running application, of which a process has one: hand it to StylesCommon::Initialize, make a document
/// the active one, create data sources in its context.
///
/// It is everything that the library asks an application for, in one object. A larger host has an object for
/// each of these interfaces.
class STYLEPROPERTIES_HOST_API Application final : public IOrvexCmn_App,
                                                   public IStyleSourceProvider,
                                                   public IStylesSourceApp,
                                                   public IAppInterface,
                                                   public IPanelHost
{
public:
    /// Puts a question to the person: the text and the flags of a message box, to the button that was
    /// pressed.
    using Confirmation = std::function<int(const OvxStringT& text, int flags)>;

    /// The dialog service is borrowed, and may be null.
    explicit Application(IDialogService* dialogService = nullptr);
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;
    ~Application();

    /// Makes a document the one that panels work on; borrowed until the next call, null for none.
    void SetActiveDocument(Document* document) noexcept;

    /// The context that comes with the application: the one in which panels edit objects at first.
    [[nodiscard]] Context& GetContext() noexcept { return context; }

    /// Makes another context the one in which panels edit objects; borrowed until the next call, null for
    /// none.
    void SetObjectPropertiesContext(IDataContext* newContext) noexcept { shownContext = newContext; }

    [[nodiscard]] Presets& GetPresets() noexcept { return presets; }

    /// Without one, every question is answered no.
    void SetConfirmation(Confirmation newConfirmation);

    [[nodiscard]] const Confirmation& GetConfirmation() const noexcept { return confirmation; }

    /// For the idle times of the program: delivers the events that wait, then ends the data sources that do.
    static void RunIdle();

    void QueryInterface(const InterfaceId& id, void** out) override;
    IStyleSourceProvider* GetActiveStyleSourceProvider() override;
    bool IsExcludedStyleName(const OvxStringT& name) override;
    OvxStringT GetDisplayStyleName(const OvxStringT& name) override;
    Styles::StylePresetManager& GetStylePresetManager() override;
    IPanelHost* GetPanelHost() override;
    IDataContext* GetObjectPropertiesContext() override;

private:
    Presets presets;
    Document* activeDocument = nullptr; ///< Null while none is open.
    Context context;
    IDataContext* shownContext = &context; ///< May be null.
    Confirmation confirmation;
};

} // namespace TinyHost
