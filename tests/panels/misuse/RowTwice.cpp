#include "panels/PanelRow.h"

constexpr auto kRows = Panels::Rows({{L"ShadowColor", L"color"}, {L"ShadowColor", L"colour"}});
