#include "panels/PanelRegistration.h"

class Clock final : public DataSource<Clock, true>
{
public:
    void FillDataSourceMap() {}
};

const Panels::PanelRegistration<Clock> registration;
