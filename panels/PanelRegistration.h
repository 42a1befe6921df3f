#pragma once

#include "host/data_binding/DataSourceFactory.h"
#include "host/data_binding/IDataSourceRegistrar.h"

namespace Panels
{

/// Keeps a factory of the panel class `T` registered for as long as it lives.
///
/// One static object in each panel module: hosts find the class while the module is loaded. Whoever unloads a
/// module ends the data sources that came from it before.
template <class T>
class PanelRegistration
{
public:
    PanelRegistration() { IDataSourceRegistrar::GetInstance().RegisterFactory(&factory); }

    PanelRegistration(const PanelRegistration&) = delete;
    PanelRegistration& operator=(const PanelRegistration&) = delete;

private:
    /// Unregisters itself. A panel is unique within its frame.
    DataSourceFactory<T> factory{L"frame"};
};

} // namespace Panels
