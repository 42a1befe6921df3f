// The smallest panel: one row of a category that the host has already.

#include "host/data_binding/DataSource.h"
#include "host/style_model/CategoryNames.h"
#include "panels/PanelDatasource.h"
#include "panels/PanelRegistration.h"

namespace
{

constexpr auto kRows = Panels::Rows({{L"TintColor", L"color"}});

} // namespace

class TintPanelDatasource final : public Panels::PanelDatasource, public DataSource<TintPanelDatasource, true>
{
public:
    void FillDataSourceMap() { RegisterRows(kRows); }

protected:
    [[nodiscard]] Styles::PropertyKey GetCategory() const override { return Styles::FillStyleCategoryName; }
};

namespace
{

const Panels::PanelRegistration<TintPanelDatasource> registration;

} // namespace
