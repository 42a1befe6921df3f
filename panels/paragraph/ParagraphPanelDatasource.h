#pragma once

#include "host/data_binding/DataSource.h"
#include "panels/PanelDatasource.h"

/// The paragraph panel: how the paragraphs of the targets' text are set.
class ParagraphPanelDatasource final : public Panels::PanelDatasource,
                                       public DataSource<ParagraphPanelDatasource, true>
{
public:
    /// Binds the rows of the panel. Called once by the framework.
    void FillDataSourceMap();

protected:
    [[nodiscard]] Styles::PropertyKey GetCategory() const override;
};
