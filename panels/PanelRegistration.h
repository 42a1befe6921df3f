#pragma once

#include "datasource/BaseStylePropertiesDatasource.h"
#include "host/data_binding/DataSource.h"
#include "host/data_binding/DataSourceFactory.h"
#include "host/data_binding/IDataSourceRegistrar.h"
#include "panels/PanelInterface.h"

#include <concepts>
#include <type_traits>

namespace Panels
{

/// Keeps a factory of the panel class `T` registered for as long as it lives.
///
/// One static object in each panel module: hosts find the class while the module is loaded. Whoever unloads a
/// module ends the data sources that came from it before. Programs refuse a module that registers a class
/// whose name is taken.
template <class T>
class PanelRegistration
{
    static_assert(std::derived_from<T, BaseStylePropertiesDatasource>,
                  "a panel derives from Panels::PanelDatasource, or from BaseStylePropertiesDatasource");
    static_assert(std::derived_from<T, DataSource<T, true>>,
                  "a panel derives from DataSource<T, true> as well, with its own class for T: without it "
                  "nobody calls its FillDataSourceMap()");
    static_assert(
        requires(T & panel) { panel.FillDataSourceMap(); },
        "a panel has a public FillDataSourceMap(), which binds its rows");
    static_assert(!std::is_abstract_v<T>, "a panel can be made: it overrides what its bases leave open");

public:
    PanelRegistration() { IDataSourceRegistrar::GetInstance().RegisterFactory(&factory); }

    PanelRegistration(const PanelRegistration&) = delete;
    PanelRegistration& operator=(const PanelRegistration&) = delete;

private:
    /// Unregisters itself. A panel is unique within its frame.
    DataSourceFactory<T> factory{L"frame"};
};

} // namespace Panels

#if defined(_WIN32)
#define STYLEPROPERTIES_PANEL_EXPORT __declspec(dllexport)
#else
#define STYLEPROPERTIES_PANEL_EXPORT __attribute__((used, visibility("default")))
#endif

/// Tells programs the version of panels that a module was built for; the one name that a module exports.
extern "C" STYLEPROPERTIES_PANEL_EXPORT inline const char* styleproperties_panel_interface() noexcept
{
    return Panels::kPanelInterface;
}

#undef STYLEPROPERTIES_PANEL_EXPORT
