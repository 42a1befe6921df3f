#pragma once

#include "datasource/BaseStylePropertiesDatasource.h"
#include "host/data_binding/DataSource.h"
#include "host/data_binding/DataSourceFactory.h"
#include "host/data_binding/IDataSourceRegistrar.h"

#include <concepts>
#include <type_traits>

namespace Panels
{

/// Keeps a factory of the panel class `T` registered for as long as it lives.
///
/// One static object in each panel module: hosts find the class while the module is loaded. Whoever unloads a
/// module ends the data sources that came from it before.
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
