#pragma once

#include "module/LibraryExport.h"

class IOrvexCmn_App;
class IStylesSource;
class IStylesSourceApp;

namespace OvxUtils
{
template <class T>
class Singleton;
}

/// Remembers the host application for the whole module, and finds its services.
///
/// One object for each process, whichever modules ask for it; made when it is first asked for. A host calls
/// `StylesCommon::GetInstance().Initialize(app)` at start-up, before it makes any data source and before
/// other threads use the module: the stored application is not guarded by a lock.
class STYLEPROPERTIES_API StylesCommon final
{
public:
    /// Stores the application, in place of any earlier one.
    ///
    /// @param app borrowed; must stay alive until another takes its place, the instance is released, or the
    ///            process ends. Null takes the application away.
    /// @returns   true, always.
    virtual bool Initialize(IOrvexCmn_App* app);

    /// The one instance, without an application when it was just made. Safe from any thread.
    [[nodiscard]] static StylesCommon& GetInstance();

    /// Tells whether there is an instance. Makes none. Safe from any thread.
    [[nodiscard]] static bool HasInstance();

    /// Ends the instance, when there is one; the next GetInstance() makes a fresh one without an application.
    /// `final` also records that the release was meant for good; the record blocks nothing. Safe from any
    /// thread.
    static void ReleaseInstance(bool final);

    /// The application handed to Initialize; null before.
    [[nodiscard]] static IOrvexCmn_App* GetApp();

    /// The application's services for styles.
    ///
    /// Without an application, or with one that offers none, these are the module's own: no style name is
    /// excluded, names are displayed as they are, and presets are kept nowhere. The same object each time;
    /// lives as long as the module.
    [[nodiscard]] static IStylesSourceApp& StylesApp();

    /// The styles of the active document; null without an application, a provider or a document. Borrowed.
    [[nodiscard]] static IStylesSource* GetActiveStyleSource();

private:
    friend class OvxUtils::Singleton<StylesCommon>;

    StylesCommon() = default;
    ~StylesCommon() = default;

    IOrvexCmn_App* app = nullptr; ///< Borrowed from the host; null until Initialize.
};
