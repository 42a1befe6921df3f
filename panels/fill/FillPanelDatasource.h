#pragma once

#include "host/data_binding/DataSource.h"
#include "panels/PanelDatasource.h"

/// The fill panel: what fills the targets: a colour, a gradient, a hatch or a bitmap.
class FillPanelDatasource final : public Panels::PanelDatasource, public DataSource<FillPanelDatasource, true>
{
public:
    /// Binds the rows of the panel. Called once by the framework.
    void FillDataSourceMap();

    /// "FillPresets".
    [[nodiscard]] OvxStringT PresetCategoryName() const override;

protected:
    [[nodiscard]] Styles::PropertyKey GetCategory() const override;
};
