// Data source classes of a module that did not come with the programs: one good panel, and several that
// cannot be used as one.

#include "datasource/BaseStylePropertiesDatasource.h"
#include "host/data_binding/DataSource.h"
#include "host/data_binding/DataSourceFactory.h"
#include "host/data_binding/IDataSourceRegistrar.h"
#include "panels/PanelDatasource.h"
#include "panels/PanelRegistration.h"

#include <stdexcept>

namespace
{

constexpr auto kShadowRows = Panels::Rows({
    {L"ShadowVisibility", L"visibility"},
    {L"ShadowColor", L"color"},
    {L"ShadowDistance", L"distance"},
});

} // namespace

class ShadowPanelDatasource final : public Panels::PanelDatasource,
                                    public DataSource<ShadowPanelDatasource, true>
{
public:
    void FillDataSourceMap() { RegisterRows(kShadowRows); }

protected:
    [[nodiscard]] Styles::PropertyKey GetCategory() const override
    {
        return Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(L"shadow"));
    }
};

/// The same panel with presets.
class StoredShadowPanelDatasource final : public Panels::PanelDatasource,
                                          public DataSource<StoredShadowPanelDatasource, true>
{
public:
    void FillDataSourceMap() { RegisterRows(kShadowRows); }

    [[nodiscard]] OvxStringT PresetCategoryName() const override { return L"ShadowPresets"; }

protected:
    [[nodiscard]] Styles::PropertyKey GetCategory() const override
    {
        return Styles::PropertyKey(Styles::PooledString<Styles::StringPool>(L"shadow"));
    }
};

/// A panel that binds no rows.
class HollowPanelDatasource final : public BaseStylePropertiesDatasource,
                                    public DataSource<HollowPanelDatasource, true>
{
public:
    void FillDataSourceMap() {}
};

/// A data source, but no panel.
class ClockDatasource final : public DataSource<ClockDatasource, true>
{
public:
    void FillDataSourceMap() {}
};

/// A panel that cannot be made.
class FailingPanelDatasource final : public BaseStylePropertiesDatasource,
                                     public DataSource<FailingPanelDatasource, true>
{
public:
    FailingPanelDatasource() { throw std::runtime_error("the licence of this panel has run out"); }

    void FillDataSourceMap() {}
};

/// A panel that fails when it looks around.
class LateFailingPanelDatasource final : public BaseStylePropertiesDatasource,
                                         public DataSource<LateFailingPanelDatasource, true>
{
public:
    void FillDataSourceMap() {}

    void PostConstruct() override
    {
        BaseStylePropertiesDatasource::PostConstruct();
        throw std::runtime_error("there is no neighbour");
    }
};

/// A panel that fails with no error at all.
class OddlyFailingPanelDatasource final : public BaseStylePropertiesDatasource,
                                          public DataSource<OddlyFailingPanelDatasource, true>
{
public:
    void FillDataSourceMap() { throw 42; }
};

namespace
{

const Panels::PanelRegistration<ShadowPanelDatasource> shadow;
const Panels::PanelRegistration<StoredShadowPanelDatasource> storedShadow;
const Panels::PanelRegistration<HollowPanelDatasource> hollow;

/// What registers a panel takes no other class.
struct ClockRegistration
{
    ClockRegistration() { IDataSourceRegistrar::GetInstance().RegisterFactory(&factory); }

    DataSourceFactory<ClockDatasource> factory{L"frame"};
};

const ClockRegistration clock;
const Panels::PanelRegistration<FailingPanelDatasource> failing;
const Panels::PanelRegistration<LateFailingPanelDatasource> lateFailing;
const Panels::PanelRegistration<OddlyFailingPanelDatasource> oddlyFailing;

} // namespace
