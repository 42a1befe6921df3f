// The data source of the add-preset dialog.

#include "presets/StylePresets.h"

void StylePresets::FillDataSourceMap()
{
}
