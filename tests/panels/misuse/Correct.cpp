#include "panels/PanelDatasource.h"
#include "panels/PanelRegistration.h"

class Shadow final : public Panels::PanelDatasource, public DataSource<Shadow, true>
{
public:
    void FillDataSourceMap()
    {
        static constexpr auto kRows =
            Panels::Rows({{L"ShadowColor", L"color"}, {L"ShadowSize", L"blur.size"}});
        RegisterRows(kRows);
    }
};

const Panels::PanelRegistration<Shadow> registration;
