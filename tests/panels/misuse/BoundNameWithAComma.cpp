#include "panels/PanelRow.h"

constexpr auto kRows = Panels::Rows({{L"ShadowColor,ShadowWidth", L"color"}});
