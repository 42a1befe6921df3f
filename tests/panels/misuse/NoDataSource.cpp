#include "panels/PanelDatasource.h"
#include "panels/PanelRegistration.h"

class Shadow : public Panels::PanelDatasource
{
public:
    void FillDataSourceMap() {}
};

const Panels::PanelRegistration<Shadow> registration;
