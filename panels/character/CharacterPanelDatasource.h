#pragma once

#include "host/data_binding/DataSource.h"
#include "panels/PanelDatasource.h"

/// The character panel: the look of the letters of the targets' text.
class CharacterPanelDatasource final : public Panels::PanelDatasource,
                                       public DataSource<CharacterPanelDatasource, true>
{
public:
    /// Binds the rows of the panel. Called once by the framework.
    void FillDataSourceMap();

protected:
    [[nodiscard]] Styles::PropertyKey GetCategory() const override;
};
