#pragma once

#include "host/data_binding/DataSource.h"
#include "panels/PanelDatasource.h"

/// The outline panel: the line around the targets, and the arrows at its ends.
class OutlinePanelDatasource final : public Panels::PanelDatasource,
                                     public DataSource<OutlinePanelDatasource, true>
{
public:
    /// Binds the rows of the panel. Called once by the framework.
    void FillDataSourceMap();

    /// "OutlinePresets".
    [[nodiscard]] OvxStringT PresetCategoryName() const override;

protected:
    [[nodiscard]] Styles::PropertyKey GetCategory() const override;
};
