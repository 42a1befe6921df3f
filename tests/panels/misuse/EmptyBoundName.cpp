#include "panels/PanelRow.h"

constexpr auto kRows = Panels::Rows({{L"", L"color"}});
