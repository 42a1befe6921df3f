#pragma once

#include "host/data_binding/DataSource.h"

/// The data source behind the dialog that names a new preset.
///
/// Hosts make it through the factory that the module registers when it is loaded.
class StylePresets final : public DataSource<StylePresets, true>
{
public:
    /// Registers the dialog's bound names, of which there are none.
    void FillDataSourceMap();
};
