#pragma once

#include "datasource/BaseStylePropertiesDatasource.h"
#include "host/data_binding/DataSource.h"
#include "host/style_model/CategoryNames.h"

namespace Bench
{

/// A panel of fills, as a panel module has it, that lets the benchmarks ask what its rows ask.
class StylePanel final : public BaseStylePropertiesDatasource, public DataSource<StylePanel, true>
{
public:
    void FillDataSourceMap() {}

    using BaseStylePropertiesDatasource::GetActivePropertyState;
    using BaseStylePropertiesDatasource::WriteTarget;

protected:
    [[nodiscard]] Styles::PropertyKey GetCategory() const override { return Styles::FillStyleCategoryName; }
};

} // namespace Bench
